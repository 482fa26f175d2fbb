-- US-12, miscelatore di due liquidi. Da avviare con --impianto 12.
-- SA automatico, SB11 start e SB10 stop dell'automatico, SB1 emergenza; in manuale un pulsante di start
-- e uno di stop per ogni operazione. Il prodotto scorre solo con pompa e valvola insieme, lo scarico
-- con la sola YV3.
-- La ricetta chiesta si cambia qui.
local litri_1, litri_2 = 40, 20
local mescola = 5000  -- ms

usa("miscelatore.lua")
usa("sicurezza.lua")

local sa, start, stop_auto = "imgCom", "imgSB(0)", "imgSB(1)"
local scarico, agitatore, vapore = "Q0.4", "Q0.5", "Q1.6"
local mandata_1, mandata_2 = { "Q0.0", "Q0.1" }, { "Q0.2", "Q0.3" }
local comandi = { "Q0.0", "Q0.1", "Q0.2", "Q0.3", scarico, agitatore, vapore }
local hl = { "Q0.6", "Q0.7", "Q1.0", "Q1.1", "Q1.2", "Q1.3", "Q1.4", "Q1.5" }  -- da HL1 a HL8

local function tutto_fermo() return spenti(comandi) end
local function carica() return accesi(mandata_1) or accesi(mandata_2) end

local function in_manuale() return senza_comandi(tutto_fermo) end

-- SA in automatico e Start: il carico comincia.
local function in_automatico()
  in_manuale()
  gira(sa)
  serve(tutto_fermo(), "con SA in automatico si deve aspettare Start")
  premi_per(start, 300)
  return serve(carica(), "in automatico, a serbatoio vuoto, Start deve cominciare il carico")
end

local function osserva(ms, anche)
  return osserva_ricetta(ms, function() return acceso(scarico) end, function() return acceso(agitatore) end, anche)
end

for _, operazione in ipairs {
  { nome = "prodotto 1", start = "imgSB(2)", stop = "imgSB(3)", uscite = mandata_1, luci = "01000100" },
  { nome = "prodotto 2", start = "imgSB(4)", stop = "imgSB(5)", uscite = mandata_2, luci = "00100100" },
  { nome = "mescolatore e vapore", start = "imgSB(6)", stop = "imgSB(7)", uscite = { agitatore, vapore }, luci = "00010100" },
  { nome = "scarico", start = "imgSB(8)", stop = "imgSB(9)", uscite = { scarico }, luci = "00001100" },
} do
  local nome = operazione.nome
  prova("manuale: " .. nome, 5, function()
    in_manuale()
    if nome == "scarico" then
      premi_per("imgSB(2)", 300)
      attendi(15000)
      premi_per("imgSB(3)", 300)
      serve(litri() > 10, "in manuale SB2 deve caricare il prodotto 1")
    end
    local prima = litri()
    premi_per(operazione.start, 300)
    attendi(2000)
    local va = accesi(operazione.uscite)
    if nome:find("prodotto") then va = va and litri() > prima end
    if nome == "scarico" then va = va and litri() < prima end
    serve_e_vale(1.5, va, "in manuale lo Start deve avviare " .. nome .. ", che resta in funzione (autoritenuta)")
    local altre = 0
    for _, uscita in ipairs(comandi) do if acceso(uscita) then altre = altre + 1 end end
    punti(0.5, altre == #operazione.uscite, "lo Start di " .. nome .. " non deve comandare nient'altro")
    punti(1, lampade(hl, operazione.luci), "in manuale con " .. nome .. " devono essere accese HL6 e la sua lampada, e nessun'altra")
    premi(operazione.stop)
    attendi(100)
    sicuro(1, va, spenti(operazione.uscite), "in manuale lo Stop deve fermare " .. nome .. " entro un decimo di secondo")
    rilascia(operazione.stop)
    attendi(2000)
    sicuro(1, va, tutto_fermo(), "rilasciato lo Stop " .. nome .. " non deve ripartire")
  end)
end

for _, prodotto in ipairs {
  { nome = "prodotto 1", start = "imgSB(2)", linea = mandata_1 },
  { nome = "prodotto 2", start = "imgSB(4)", linea = mandata_2 },
} do
  prova("troppo pieno con il " .. prodotto.nome, 2, function()
    in_manuale()
    premi_per(prodotto.start, 300)
    local pieno = attendi_quando(function() return litri() > 160 end, 120000)
    attendi(5000)
    serve(pieno or litri() >= 150, "in manuale il carico deve poter riempire il serbatoio fino a 150 litri")
    sicuro(1, true, litri() <= 163 and spenti(prodotto.linea), "oltre 160 litri il carico del " .. prodotto.nome .. " deve fermarsi")
    premi_per(prodotto.start, 300)
    attendi(2000)
    sicuro(1, true, litri() <= 163, "con il troppo pieno un altro Start non deve caricare")
  end)
end

prova("scarico e carico", 5, function()
  in_manuale()
  premi("imgSB(8)")
  attendi(1000)
  punti(1, not acceso(scarico), "a serbatoio vuoto lo scarico non deve aprirsi")
  rilascia("imgSB(8)")
  attendi(200)
  if acceso(scarico) then premi_per("imgSB(9)", 300) end
  premi_per("imgSB(2)", 300)
  attendi(8000)
  serve(accesi(mandata_1) and litri() > 10, "in manuale SB2 deve caricare il prodotto 1")
  premi_per("imgSB(8)", 300)
  attendi(500)
  punti(1, not (acceso(scarico) and carica()), "durante il carico del prodotto 1 lo Start dello scarico non deve aprire YV3")
  premi_per("imgSB(3)", 300)
  premi_per("imgSB(9)", 300)
  premi_per("imgSB(4)", 300)
  attendi(1000)
  serve(accesi(mandata_2), "in manuale SB4 deve caricare il prodotto 2")
  premi_per("imgSB(8)", 300)
  attendi(500)
  punti(1, not (acceso(scarico) and carica()), "durante il carico del prodotto 2 lo Start dello scarico non deve aprire YV3")
  premi_per("imgSB(5)", 300)
  premi_per("imgSB(9)", 300)
  premi_per("imgSB(8)", 300)
  serve(acceso(scarico), "in manuale SB8 deve aprire lo scarico")
  premi_per("imgSB(2)", 300)
  local insieme = acceso(scarico) and carica()
  premi_per("imgSB(3)", 300)
  premi_per("imgSB(4)", 300)
  insieme = insieme or acceso(scarico) and carica()
  premi_per("imgSB(5)", 300)
  punti(1, not insieme, "durante lo scarico non si deve poter caricare")
  if not acceso(scarico) then premi_per("imgSB(8)", 300) end
  local vuoto = attendi_quando(function() return litri() == 0 end, 60000)
  attendi(200)
  punti(1, vuoto and not acceso(scarico), "in manuale a serbatoio vuoto lo scarico deve chiudersi")
end)

prova("l'automatico vuole SA e Start", 2, function()
  in_manuale()
  premi(start)
  local mosso = attendi_quando(function() return not tutto_fermo() end, 300)
  rilascia(start)
  attendi(2000)
  sicuro(1, true, not mosso and tutto_fermo(), "in manuale (SA a 0) lo Start dell'automatico non deve avviare nulla")
  gira(sa)
  attendi(2000)
  sicuro(1, true, tutto_fermo() , "con SA in automatico (1) si deve aspettare Start")
  premi_per(start, 300)
  serve(carica(), "in automatico Start deve cominciare il carico")
end)

prova("niente manuale in automatico", 3, function()
  in_manuale()
  gira(sa)
  local mosso = false
  for _, pulsante in ipairs { "imgSB(2)", "imgSB(4)", "imgSB(6)", "imgSB(8)" } do
    premi_per(pulsante, 300)
    mosso = mosso or not tutto_fermo()
  end
  attendi(500)
  sicuro(1.5, true, not mosso and tutto_fermo(), "in automatico i comandi manuali non devono avviare nulla")
  premi_per(start, 300)
  serve(carica(), "in automatico, a serbatoio vuoto, Start deve cominciare il carico")
  premi_per("imgSB(6)", 300)
  premi_per("imgSB(8)", 300)
  sicuro(1.5, true, not acceso(agitatore) and not acceso(scarico),
         "nemmeno durante il ciclo i comandi manuali devono aprire lo scarico o avviare il mescolatore")
end)

prova("mescolatore e scarico insieme", 1, function()
  in_manuale()
  premi_per("imgSB(2)", 300)
  attendi(3000)
  premi_per("imgSB(3)", 300)
  premi_per("imgSB(6)", 300)
  serve(acceso(agitatore), "in manuale SB6 deve avviare il mescolatore")
  premi_per("imgSB(8)", 300)
  punti(1, acceso(agitatore) and acceso(scarico), "in manuale si deve poter scaricare con il mescolatore in moto")
end)

prova("dal manuale all'automatico", 1, function()
  in_manuale()
  premi_per("imgSB(2)", 300)
  attendi(3000)
  serve(accesi(mandata_1), "in manuale SB2 deve caricare il prodotto 1")
  gira(sa)
  sicuro(1, true, tutto_fermo(), "girando SA in automatico i comandi manuali devono cessare")
end)

prova("ricetta", 16, function()
  in_automatico()
  attendi(300)
  punti(1, accesi(mandata_1) and accesi(mandata_2), "i due prodotti si devono caricare insieme")
  punti(1, lampade(hl, "11100010"), "durante il carico devono essere accese HL1, HL2, HL3 e HL7, e nessun'altra")
  local vapore_con_agitatore, luci_mescola = true, nil
  local luci = true  -- com'erano le lampade fino a questo cambiamento
  local visto = osserva(300000, function(visto)
    if acceso(vapore) ~= acceso(agitatore) then vapore_con_agitatore = false end
    if luci_mescola == nil and visto.agitato >= 2000 then luci_mescola = luci end
    luci = lampade(hl, "10010010")
  end)
  if luci_mescola == nil then luci_mescola = true end
  serve(visto.scaricando, "caricati e mescolati i prodotti si deve scaricare")
  punti_per_i_litri(2, visto, litri_1, litri_2)
  print("mescolato per " .. visto.agitato .. " ms")
  punti(2, math.abs(visto.agitato - mescola) <= 1000, "il mescolatore deve girare per 5 secondi (uno in più o in meno)")
  punti(1, vapore_con_agitatore, "il vapore deve essere aperto finché il mescolatore gira, e soltanto allora")
  punti(1, luci_mescola, "durante la mescolazione devono essere accese HL1, HL4 e HL7, e nessun'altra")
  punti(2, visto.finita and litri() == 0, "il serbatoio si deve vuotare del tutto e lo scarico chiudersi")
  attendi(5000)
  punti(1, tutto_fermo(), "finita la ricetta si deve aspettare un nuovo Start")
  punti(1, lampade(hl, "00000010"), "finita la ricetta, in automatico, deve essere accesa soltanto HL7")
  premi_per(start, 300)
  attendi(500)
  serve(carica(), "finita la ricetta un nuovo Start ne deve cominciare un'altra")
  visto = osserva(300000)
  punti(2, visto.scaricando and math.abs(visto.litri[1] - litri_1) <= 1 and math.abs(visto.litri[2] - litri_2) <= 1,
        "anche la seconda ricetta deve avere i suoi litri")
end)

for n, lenta in ipairs { "ME_SpedP1", "ME_SpedP2" } do
  prova("ricetta con la pompa " .. n .. " lenta", 2, function()
    regola(lenta, 600)
    in_automatico()
    local visto = osserva(300000)
    serve(visto.scaricando, "caricati e mescolati i prodotti si deve scaricare")
    punti(2, math.abs(visto.litri[1] - litri_1) <= 1 and math.abs(visto.litri[2] - litri_2) <= 1,
          "anche con la pompa " .. n .. " lenta ogni prodotto deve avere i suoi litri")
  end)
end

prova("luci dello scarico", 1, function()
  in_automatico()
  serve(attendi_quando(function() return acceso(scarico) end, 300000), "caricati e mescolati i prodotti si deve scaricare")
  attendi(1000)
  punti(1, lampade(hl, "10001010"), "durante lo scarico devono essere accese HL1, HL5 e HL7, e nessun'altra")
end)

for _, quanti in ipairs { 10, 90 } do
  prova("serbatoio con " .. quanti .. " litri", 2, function()
    in_manuale()
    premi_per("imgSB(2)", 300)
    attendi_quando(function() return litri() >= quanti end, 60000)
    premi_per("imgSB(3)", 300)
    serve(litri() >= quanti and tutto_fermo(), "in manuale SB2 deve caricare il prodotto 1 e SB3 fermarlo")
    gira(sa)
    premi_per(start, 300)
    attendi(2000)
    punti(2, tutto_fermo(), "con " .. quanti .. " litri nel serbatoio Start non deve cominciare il ciclo")
  end)
end

prova("emergenza prima di Start", 2, function()
  in_manuale()
  gira(sa)
  clic("ImgEm")
  attendi(200)
  premi(start)
  attendi(300)
  local fermo = tutto_fermo()
  rilascia(start)
  attendi(200)
  clic("ImgEm")
  attendi(2000)
  fermo = fermo and tutto_fermo()
  premi_per(start, 300)
  serve(carica(), "dopo l'emergenza Start deve cominciare il ciclo")
  sicuro(2, true, fermo, "durante l'emergenza Start non deve avviare nulla, nemmeno dopo")
end)

prova_start_con_stop(in_manuale, { selettore = sa, start = start, stop = stop_auto }, tutto_fermo, carica)

prova("dall'automatico al manuale", 1, function()
  in_automatico()
  attendi(3000)
  gira(sa)
  attendi(1000)
  sicuro(1, true, tutto_fermo(), "girando SA in manuale il ciclo deve interrompersi")
end)

-- Il ciclo è nella fase data: ci arriva e sta un secondo.
local fasi = {
  { nome = "carico", in_corso = carica },
  { nome = "mescolazione", in_corso = function() return acceso(agitatore) end },
  { nome = "scarico", in_corso = function() return acceso(scarico) end },
}
for _, fase in ipairs(fasi) do
  prova("Stop durante la fase di " .. fase.nome, 2, function()
    in_automatico()
    attendi(3000)
    local va = serve(attendi_quando(fase.in_corso, 300000), "dopo Start si deve arrivare alla fase di " .. fase.nome)
    attendi(1000)
    premi(stop_auto)
    attendi(200)
    sicuro(1, va, tutto_fermo(), "lo Stop deve interrompere la fase di " .. fase.nome .. " entro 0,2 secondi")
    rilascia(stop_auto)
    attendi(8000)
    sicuro(1, va, tutto_fermo() and not acceso("Q0.6"), "rilasciato lo Stop nella fase di " .. fase.nome .. " il ciclo non deve riprendere da solo")
  end)
  prova("emergenza durante la fase di " .. fase.nome, 3, function()
    in_automatico()
    attendi(3000)
    local va = serve(attendi_quando(fase.in_corso, 300000), "dopo Start si deve arrivare alla fase di " .. fase.nome)
    attendi(1000)
    local buia = not acceso("Q1.5")
    clic("ImgEm")
    attendi(200)
    sicuro(1, va, tutto_fermo(), "l'emergenza deve interrompere la fase di " .. fase.nome .. " entro 0,2 secondi")
    punti(1, buia and si_accende("Q1.5"), "con l'emergenza HL8 deve accendersi, fissa o lampeggiante")
    clic("ImgEm")
    attendi(8000)
    sicuro(1, va, tutto_fermo() and not acceso("Q0.6"), "finita l'emergenza nella fase di " .. fase.nome .. " il ciclo non deve riprendere da solo")
  end)
end

for _, operazione in ipairs {
  { nome = "prodotto 1", start = "imgSB(2)", uscite = mandata_1 },
  { nome = "prodotto 2", start = "imgSB(4)", uscite = mandata_2 },
  { nome = "mescolatore e vapore", start = "imgSB(6)", uscite = { agitatore, vapore } },
  { nome = "scarico", start = "imgSB(8)", uscite = { scarico } },
} do
  local nome = operazione.nome
  prova("emergenza in manuale: " .. nome, 3, function()
    in_manuale()
    if nome == "scarico" then
      premi_per("imgSB(2)", 300)
      attendi(8000)
      premi_per("imgSB(3)", 300)
    end
    premi_per(operazione.start, 300)
    attendi(1000)
    local va = serve(accesi(operazione.uscite), "in manuale lo Start deve avviare " .. nome)
    clic("ImgEm")
    attendi(200)
    sicuro(1, va, tutto_fermo(), "anche in manuale l'emergenza deve fermare " .. nome .. " entro 0,2 secondi")
    premi(operazione.start)
    attendi(300)
    sicuro(1, va, tutto_fermo(), "durante l'emergenza lo Start di " .. nome .. " non deve avviare nulla")
    rilascia(operazione.start)
    clic("ImgEm")
    attendi(3000)
    sicuro(1, va, tutto_fermo(), "finita l'emergenza in manuale " .. nome .. " non deve ripartire da solo")
  end)
end

prova_di_sicurezza(72, function()
  in_automatico()
  local visto = osserva(300000)
  return visto.scaricando and visto.finita
end, "in automatico Start deve portare la ricetta fino alla fine dello scarico")
