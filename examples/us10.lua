-- US-10, miscelatore di due liquidi con controllo di temperatura. Da avviare con --impianto 10.
-- SA1 automatico, SB1 start, SB2 stop; in manuale SA2 prodotto 1, SA3 prodotto 2, SA4 scarico, SA5
-- agitatore e vapore. Il prodotto scorre solo con pompa e valvola insieme.
-- La ricetta chiesta si cambia qui.
local litri_1, litri_2 = 30, 20
local mescola = 10000  -- ms

usa("miscelatore.lua")
usa("sicurezza.lua")

local sa1, start, stop_auto = "imgCom(0)", "imgSB(0)", "imgSB(1)"
local mandata_1, mandata_2, scarico = { "Q0.0", "Q0.5" }, { "Q0.1", "Q0.6" }, { "Q0.2", "Q0.7" }
local vapore, agitatore = "Q0.3", "Q0.4"
local comandi = { "Q0.0", "Q0.1", "Q0.2", "Q0.3", "Q0.4", "Q0.5", "Q0.6", "Q0.7" }
local hl = { "Q1.0", "Q1.1", "Q1.2", "Q1.3", "Q1.4", "Q1.5", "Q1.6", "Q1.7" }  -- da HL1 a HL8

local function tutto_fermo() return spenti(comandi) end
local function gradi() return tonumber(elemento("etT").Caption) end

local function in_manuale() return senza_comandi(tutto_fermo) end

-- SA1 in automatico e Start: il carico comincia.
local function in_automatico(temperatura)
  regola("UpDown1", temperatura)
  in_manuale()
  gira(sa1)
  serve(tutto_fermo(), "con SA1 in automatico si deve aspettare Start")
  premi_per(start, 300)
  return serve(accesi(mandata_1), "in automatico, a serbatoio vuoto, Start deve cominciare il carico del prodotto 1")
end

-- Oltre ai litri: il vapore, l'agitatore, la temperatura e HL1, fino all'inizio dello scarico.
local function osserva(ms)
  local insieme, buio = 0, 0
  local prima = {}  -- com'erano le uscite fino a questo cambiamento
  return osserva_ricetta(ms, function() return accesi(scarico) end, function() return acceso(agitatore) end, function(visto, passati)
    if acceso(vapore) then
      visto.vapore = true
      if not acceso(agitatore) then visto.senza_agitatore = true end
      if visto.litri[2] < litri_2 - 1 then visto.presto = true end
    end
    if prima.buio then buio = buio + passati end
    visto.sempre_luce = buio < 100
    if visto.dopo then
      local un_secondo = visto.dopo < 1000
      visto.dopo = visto.dopo + passati
      if un_secondo and visto.dopo >= 1000 then visto.chiuso = not prima.vapore end
    elseif visto.vapore and acceso("I0.7") then
      visto.dopo = 0
    end
    if prima.insieme then insieme = insieme + passati end
    prima = { buio = not acceso("Q1.0"), vapore = acceso(vapore), insieme = accesi(mandata_1) and accesi(mandata_2) }
    visto.insieme = insieme > 100
    visto.gradi = gradi()
    visto.gradi_massimi = math.max(visto.gradi_massimi or 0, visto.gradi)
  end)
end

for _, operazione in ipairs {
  { nome = "SA2 deve caricare il prodotto 1 (pompa e valvola)", selettore = "imgCom(1)", uscite = mandata_1, di = 1 },
  { nome = "SA3 deve caricare il prodotto 2 (pompa e valvola)", selettore = "imgCom(2)", uscite = mandata_2, di = 1 },
  { nome = "SA4 deve scaricare (pompa e valvola)", selettore = "imgCom(3)", uscite = scarico, di = -1 },
  { nome = "SA5 deve comandare agitatore e vapore", selettore = "imgCom(4)", uscite = { agitatore, vapore }, di = 0 },
} do
  prova("manuale: " .. operazione.nome:sub(1, 3), 4, function()
    in_manuale()
    if operazione.di == -1 then
      gira("imgCom(1)")
      attendi(8000)
      gira("imgCom(1)")
      serve(litri() > 5, "in manuale SA2 deve caricare il prodotto 1")
    end
    local prima = litri()
    gira(operazione.selettore)
    attendi(4000)
    local va = accesi(operazione.uscite) and (operazione.di == 0 or (litri() - prima) * operazione.di >= 3)
    serve_e_vale(2, va, "in manuale (SA1 a 0) " .. operazione.nome)
    local altre = 0
    for _, uscita in ipairs(comandi) do if acceso(uscita) then altre = altre + 1 end end
    punti(1, altre == #operazione.uscite, operazione.nome:sub(1, 3) .. " non deve comandare nient'altro")
    gira(operazione.selettore)
    sicuro(1, va, tutto_fermo(), "tolto " .. operazione.nome:sub(1, 3) .. " la sua operazione deve fermarsi entro 0,2 secondi")
  end)
end

for n, prodotto in ipairs { { selettore = "imgCom(1)", velocita = "ME_Speed1", linea = mandata_1 },
                            { selettore = "imgCom(2)", velocita = "ME_Speed2", linea = mandata_2 } } do
  prova("troppo pieno con il prodotto " .. n, 3, function()
    in_manuale()
    regola(prodotto.velocita, 100)
    gira(prodotto.selettore)
    attendi_quando(function() return litri() > 160 end, 60000)
    attendi(3000)
    serve(litri() >= 150, "in manuale il carico deve poter riempire il serbatoio fino a 150 litri")
    sicuro(2, true, litri() <= 163 and spenti(prodotto.linea), "oltre 160 litri il carico del prodotto " .. n .. " deve fermarsi")
    punti(1, lampade(hl, "01.10000"), "con il troppo pieno, in manuale, devono essere accese HL2 e HL4")
  end)
end

for n, motore in ipairs {
  { selettore = "imgCom(1)", uscita = "Q0.0" },
  { selettore = "imgCom(2)", uscita = "Q0.1" },
  { selettore = "imgCom(3)", uscita = "Q0.2" },
  { selettore = "imgCom(4)", uscita = "Q0.4" },
} do
  prova("termico di M" .. n .. " in manuale", 2, function()
    in_manuale()
    gira("imgCom(1)")
    attendi(6000)
    if n > 1 then
      gira("imgCom(1)")
      gira(motore.selettore)
    end
    local partito = serve(acceso(motore.uscita), "M" .. n .. " deve partire con il suo selettore")
    local attese = "01.0" .. ("0"):rep(n - 1) .. "1" .. ("0"):rep(4 - n)
    local buie = lampade(hl, "01.00000")
    clic("imgM(" .. n - 1 .. ")")
    attendi(200)
    sicuro(1, partito, not acceso(motore.uscita), "quando scatta il termico M" .. n .. " deve fermarsi entro 0,2 secondi")
    punti(1, buie and lampade(hl, attese), "con il termico di M" .. n .. " scattato deve accendersi HL" .. n + 4 .. ", e nessun'altra gialla")
  end)
end

prova("l'automatico vuole SA1 e Start", 3, function()
  in_manuale()
  premi(start)
  local mosso = attendi_quando(function() return not tutto_fermo() end, 300)
  rilascia(start)
  attendi(2000)
  sicuro(1, true, not mosso and tutto_fermo(), "in manuale (SA1 a 0) Start non deve avviare nulla")
  gira(sa1)
  attendi(2000)
  sicuro(1, true, tutto_fermo(), "con SA1 in automatico (1) si deve aspettare Start")
  for n = 1, 4 do gira("imgCom(" .. n .. ")") end
  attendi(500)
  sicuro(1, true, tutto_fermo(), "in automatico i selettori manuali non devono comandare nulla")
  for n = 1, 4 do gira("imgCom(" .. n .. ")") end
  premi_per(start, 300)
  serve(accesi(mandata_1), "in automatico Start deve cominciare il carico del prodotto 1")
end)

for _, quanti in ipairs { 10, 90 } do
  prova("serbatoio con " .. quanti .. " litri", 2, function()
    regola("ME_Speed1", 100)
    in_manuale()
    gira("imgCom(1)")
    attendi_quando(function() return litri() >= quanti end, 60000)
    gira("imgCom(1)")
    serve(litri() >= quanti and tutto_fermo(), "in manuale SA2 deve caricare il prodotto 1")
    gira(sa1)
    premi_per(start, 300)
    attendi(2000)
    punti(2, tutto_fermo(), "con " .. quanti .. " litri nel serbatoio Start non deve cominciare il ciclo")
  end)
end

prova_start_con_stop(in_manuale, { selettore = sa1, start = start, stop = stop_auto }, tutto_fermo, function() return accesi(mandata_1) end)

prova("ricetta con riscaldamento", 14, function()
  in_automatico(23)
  attendi(1000)
  serve(lampade(hl, "10000000"), "durante il carico deve essere accesa soltanto HL1")
  local visto = osserva(300000)
  serve(visto.scaricando, "caricati, scaldati e mescolati i prodotti si deve scaricare")
  punti(0.5, visto.sempre_luce, "HL1 deve essere accesa dal carico allo scarico")
  punti_per_i_litri(2, visto, litri_1, litri_2)
  punti(1, not visto.insieme, "il prodotto 2 si deve caricare dopo il prodotto 1")
  punti(2, visto.vapore and not visto.presto and visto.gradi >= 22, "dopo il carico si deve aprire il vapore fino alla temperatura impostata")
  punti(1, visto.vapore and not visto.senza_agitatore, "mentre si scalda l'agitatore deve girare")
  punti(1.5, visto.gradi_massimi >= 23 and visto.chiuso,
        "raggiunta la temperatura (BT a 1) il vapore si deve chiudere entro un secondo")
  punti(1.5, visto.dopo and math.abs((visto.dopo or 0) - mescola) <= 1500,
        "i 10 secondi di mescolazione si devono contare da quando la temperatura è raggiunta (da 8,5 a 11,5)")
  punti(2, visto.finita and litri() == 0, "il serbatoio si deve vuotare del tutto e lo scarico fermarsi")
  punti(0.5, tutto_fermo() and not acceso("Q1.0"), "finita la ricetta HL1 si deve spegnere")
end)

prova("tempo di mescolazione e nuova ricetta", 7, function()
  in_automatico(20)  -- la temperatura c'è già: resta soltanto il tempo
  local visto = osserva(300000)
  serve(visto.scaricando, "caricati e mescolati i prodotti si deve scaricare")
  print("mescolato per " .. visto.agitato .. " ms")
  punti(2, math.abs(visto.agitato - mescola) <= 1500,
        "con la temperatura già raggiunta l'agitatore deve girare per 10 secondi (da 8,5 a 11,5)")
  attendi(5000)
  punti(2, visto.finita and tutto_fermo(), "finita la ricetta si deve aspettare un nuovo Start")
  punti(1, lampade(hl, "00100000"), "finita la ricetta, alla temperatura impostata, deve essere accesa soltanto HL3")
  premi_per(start, 300)
  serve(accesi(mandata_1), "finita la ricetta un nuovo Start ne deve cominciare un'altra")
  visto = osserva(300000)
  punti(2, visto.scaricando and math.abs(visto.litri[1] - litri_1) <= 1 and math.abs(visto.litri[2] - litri_2) <= 1,
        "anche la seconda ricetta deve avere i suoi litri")
end)

for _, fase in ipairs {
  { nome = "carico del prodotto 1", in_corso = function() return accesi(mandata_1) end },
  { nome = "carico del prodotto 2", in_corso = function() return accesi(mandata_2) end },
  { nome = "riscaldamento", in_corso = function() return acceso(vapore) end },
  { nome = "scarico", in_corso = function() return accesi(scarico) end },
} do
  prova("Stop durante la fase di " .. fase.nome, 2.5, function()
    in_automatico(22)
    local va = serve(attendi_quando(fase.in_corso, 300000), "dopo Start si deve arrivare alla fase di " .. fase.nome)
    attendi(2000)
    punti(0.5, acceso("Q1.0"), "nella fase di " .. fase.nome .. " HL1 deve essere accesa")
    premi(stop_auto)
    attendi(200)
    sicuro(1, va, tutto_fermo(), "lo Stop deve interrompere la fase di " .. fase.nome .. " entro 0,2 secondi")
    rilascia(stop_auto)
    attendi(5000)
    sicuro(1, va, tutto_fermo() and not acceso("Q1.0"), "rilasciato lo Stop nella fase di " .. fase.nome .. " il ciclo non deve riprendere da solo")
  end)
end

prova("in manuale a metà ciclo", 1, function()
  in_automatico(23)
  attendi(3000)
  gira(sa1)
  attendi(2000)
  sicuro(1, true, tutto_fermo(), "passando in manuale il ciclo deve interrompersi")
end)

for _, caso in ipairs {
  { motore = 1, uscita = "Q0.0", in_corso = function() return accesi(mandata_1) end, nome = "carico del prodotto 1" },
  { motore = 2, uscita = "Q0.1", in_corso = function() return accesi(mandata_2) end, nome = "carico del prodotto 2" },
  { motore = 3, uscita = "Q0.2", in_corso = function() return accesi(scarico) end, nome = "scarico" },
  { motore = 4, uscita = "Q0.4", in_corso = function() return acceso(agitatore) end, nome = "mescolazione" },
} do
  prova("termico di M" .. caso.motore .. " in automatico", 1, function()
    in_automatico(22)
    local va = serve(attendi_quando(caso.in_corso, 300000), "dopo Start si deve arrivare alla fase di " .. caso.nome)
    attendi(1000)
    clic("imgM(" .. caso.motore - 1 .. ")")
    attendi(200)
    sicuro(1, va, not acceso(caso.uscita), "anche in automatico quando scatta il termico M" .. caso.motore .. " deve fermarsi entro 0,2 secondi")
  end)
end

prova_di_sicurezza(67, function()
  in_automatico(22)
  local visto = osserva(300000)
  return visto.scaricando and visto.finita
end, "in automatico Start deve portare la ricetta fino alla fine dello scarico")
