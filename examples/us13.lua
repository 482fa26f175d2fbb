-- US-13, quattro prodotti in sequenza. Da avviare con --impianto 13.
-- SB1 start, SB2 stop, SA consenso allo scarico, SB3 azzera la manutenzione, SB4 emergenza.
-- A fino a SL1 (40 litri), B fino a SL2 (80), C fino a SL3 (120), poi D. Lampade: HL2 ciclo attivo, HL6
-- fine ciclo, HL3 scarico, HL4 e HL5 motori, HL7 e HL8 termici, HL0 e HL1 manutenzione.
-- La ricetta chiesta si cambia qui.
local fine_d = 150      -- litri
local mescola = 5000    -- ms
local avviamenti = 5    -- di M1 e di M2, per la manutenzione

usa("miscelatore.lua")
usa("sicurezza.lua")

local start, stop_ciclo, azzera, sa = "imgSB(0)", "imgSB(1)", "imgSB(2)", "imgCom"
local valvole = { "Q0.0", "Q0.1", "Q0.2", "Q0.3" }
local nomi = { "A", "B", "C", "D" }
local pompa, agitatore, scarico = "Q0.5", "Q0.4", "Q0.6"
local comandi = { "Q0.0", "Q0.1", "Q0.2", "Q0.3", agitatore, pompa, scarico }
local hl = { "Q1.1", "Q1.2", "Q1.3", "Q1.4", "Q1.5", "Q1.6", "Q1.7" }  -- HL2, HL6, HL3, HL4, HL5, HL7, HL8

local function aperte()
  local quante = 0
  for _, valvola in ipairs(valvole) do
    if acceso(valvola) then quante = quante + 1 end
  end
  return quante
end
local function carica() return acceso(pompa) and aperte() > 0 end
local function tutto_fermo() return spenti(comandi) end

local function a_riposo()
  run()
  attendi(1000)
  return serve(tutto_fermo() and lampade(hl, "0000000"), "senza Start pompa, valvole, mescolatore e lampade devono essere spenti")
end

-- ME_SpedP 100 è la pompa alla velocità massima, 500 alla minima.
local function avvia()
  a_riposo()
  premi_per(start, 300)
  return serve(carica() and acceso(valvole[1]), "a serbatoio vuoto Start deve cominciare il carico del prodotto A")
end

local function porta_a(condizione, che_cosa)
  regola("ME_SpedP", 100)
  regola("ME_SpedS", 100)
  avvia()
  return serve(attendi_quando(condizione, 300000), "dopo Start si deve arrivare " .. che_cosa)
end

local function mescolando() return acceso(agitatore) end
-- Vera quando il mescolatore ha girato e si è fermato.
local function dopo_mescolazione()
  local mescolato = false
  return function()
    if acceso(agitatore) then mescolato = true end
    return mescolato and not acceso(agitatore)
  end
end

prova("ricetta", 22, function()
  regola("ME_SpedP", 100)
  avvia()
  local luci_carico, luci_mescola, spente = false, false, true
  attendi(500)
  luci_carico = lampade(hl, "1001000")
  local fino, ultima, una_sola, agitato, avvii, pompava, buio = {}, 0, true, 0, 1, true, 0
  local prima, ultimo = {}, 0  -- com'erano le uscite fino a questo cambiamento
  local mescolato = attendi_quando(function(adesso)
    local passati = adesso - ultimo
    ultimo = adesso
    for n, valvola in ipairs(valvole) do
      if acceso(valvola) then
        fino[n] = litri()
        if n < ultima then una_sola = false end
        ultima = n
      end
    end
    if aperte() > 1 then una_sola = false end
    if prima.buio then buio = buio + passati end
    if acceso(pompa) and not pompava then avvii = avvii + 1 end
    pompava = acceso(pompa)
    if prima.mescola then
      local un_secondo = agitato < 1000
      agitato = agitato + passati
      if un_secondo and agitato >= 1000 then luci_mescola = prima.luci end
    end
    prima = { buio = not acceso("Q1.1"), mescola = acceso(agitatore), luci = lampade(hl, "1000100") }
    return acceso(scarico) or agitato > 0 and not acceso(agitatore)
  end, 400000)
  local attesi = { 40, 80, 120, fine_d }
  serve(fino[1], "dopo Start si deve caricare il prodotto A")
  for n, nome in ipairs(nomi) do
    print(nome .. " fino a " .. tostring(fino[n]) .. " litri")
    punti(1.5, fino[n] and math.abs(fino[n] - attesi[n]) <= 2,
          "il prodotto " .. nome .. " si deve caricare fino a " .. attesi[n] .. " litri (due in più o in meno)")
  end
  if fino[4] and fino[4] >= 160 then pericolo("il carico del prodotto D non deve arrivare al troppo pieno") end
  punti(1, fino[4] and una_sola, "le valvole dei prodotti si devono aprire una alla volta, da A a D")
  punti(1, fino[4] and avvii == 1, "la pompa deve restare in moto mentre si cambia valvola")
  punti(1, luci_carico and buio < 100, "durante il carico devono essere accese HL2 ciclo attivo e HL4 motore M1, e nessun'altra; HL2 sempre, da A a D")
  serve(mescolato and agitato > 0, "caricati i prodotti si deve mescolare")
  punti(2, math.abs(agitato - mescola) <= 1000, "il mescolatore deve girare per 5 secondi (uno in più o in meno)")
  punti(1, luci_mescola, "durante la mescolazione devono essere accese HL2 ciclo attivo e HL5 motore M2, e nessun'altra")
  attendi(300)
  punti(1, lampade(hl, ".100000"), "dopo la mescolazione HL6 fine ciclo deve accendersi, e le lampade dei motori spegnersi")
  attendi(10000)
  serve_e_vale(1, tutto_fermo(), "finita la mescolazione lo scarico deve aspettare SA")
  gira(sa)
  attendi(300)
  punti(1, acceso(scarico), "con SA lo scarico deve aprirsi")
  punti(1, lampade(hl, "..10000"), "durante lo scarico HL3 deve essere accesa")
  local vuoto = attendi_quando(function() return litri() == 0 end, 120000)
  attendi(1000)
  punti(2, vuoto and tutto_fermo(), "lo scarico deve arrivare fino a vuoto e chiudersi")
  punti(1, lampade(hl, "0000000"), "finito lo scarico tutte le lampade del ciclo devono essere spente")
  gira(sa)
  attendi(3000)
  punti(1, tutto_fermo(), "finita la ricetta si deve aspettare un nuovo Start")
  premi_per(start, 300)
  attendi(500)
  punti(2, carica() and acceso(valvole[1]), "finita la ricetta se ne deve poter fare un'altra")
end)

prova("serbatoio non vuoto", 2, function()
  avvia()
  attendi(6000)
  premi_per(stop_ciclo, 300)
  serve(tutto_fermo() and litri() > 4, "lo Stop deve interrompere il carico")
  premi_per(start, 300)
  attendi(2000)
  punti(2, tutto_fermo(), "con il serbatoio non vuoto Start non deve cominciare il ciclo")
end)

prova("prodotto A mancante", 5, function()
  avvia()
  attendi(8000)
  local va = serve(carica(), "dopo Start si deve caricare il prodotto A")
  premi("etGP(0)")
  attendi(1500)
  local subito = not acceso(pompa)
  attendi(2900)
  punti(2, va and not subito and tutto_fermo(), "se per 3 secondi (da 2 a 4) non arrivano impulsi il carico deve fermarsi")
  local cambi, prima = 0, acceso("Q1.1")
  attendi_quando(function()
    if acceso("Q1.1") ~= prima then cambi, prima = cambi + 1, acceso("Q1.1") end
  end, 3000)
  punti(1, cambi >= 3, "con un prodotto mancante HL2 ciclo attivo deve lampeggiare")
  rilascia("etGP(0)")
  attendi(5000)
  punti(1, tutto_fermo(), "tornato il prodotto il carico deve aspettare Start")
  local erano = litri()
  premi_per(start, 300)
  attendi(5000)
  punti(1, carica() and acceso(valvole[1]) and litri() > erano, "tornato il prodotto Start deve riprovare dallo stesso prodotto")
end)

for n = 2, 4 do
  prova("prodotto " .. nomi[n] .. " mancante", 2, function()
    porta_a(function() return acceso(valvole[n]) end, "al prodotto " .. nomi[n])
    attendi(1000)
    premi("etGP(" .. n - 1 .. ")")
    attendi(4500)
    punti(1, tutto_fermo(), "anche se manca il prodotto " .. nomi[n] .. " pompa e valvola devono fermarsi dopo 3 secondi")
    rilascia("etGP(" .. n - 1 .. ")")
    attendi(500)
    premi_per(start, 300)
    attendi(500)
    punti(1, carica() and acceso(valvole[n]) and aperte() == 1, "mancato il prodotto " .. nomi[n] .. ", Start deve riprovare da lì")
  end)
end

prova("carico lento", 2, function()
  regola("ME_SpedP", 500)
  avvia()
  attendi(20000)
  punti(2, carica() and litri() >= 15, "con la pompa alla velocità minima (un litro al secondo) il prodotto non manca")
end)

-- Il ciclo è nella fase data.
local fasi = {
  { nome = "carico", porta = function() return porta_a(function() return acceso(valvole[2]) end, "al prodotto B") end },
  { nome = "mescolazione", porta = function() return porta_a(mescolando, "alla mescolazione") end },
  { nome = "scarico", porta = function()
      porta_a(dopo_mescolazione(), "alla fine della mescolazione")
      gira(sa)
      return serve(attendi_quando(function() return acceso(scarico) end, 2000), "con SA lo scarico deve aprirsi")
    end },
}
for _, fase in ipairs(fasi) do
  for _, arresto in ipairs {
    { nome = "lo Stop", comincia = function() premi(stop_ciclo) end, finisce = function() rilascia(stop_ciclo) end },
    { nome = "l'emergenza", comincia = function() clic("ImgEm") end, finisce = function() clic("ImgEm") end },
  } do
    prova(arresto.nome .. " nella fase di " .. fase.nome, 2, function()
      local va = fase.porta()
      attendi(1000)
      arresto.comincia()
      attendi(200)
      sicuro(1, va, tutto_fermo(), arresto.nome .. " deve interrompere la fase di " .. fase.nome .. " entro 0,2 secondi")
      arresto.finisce()
      attendi(5000)
      sicuro(1, va, tutto_fermo() and not acceso("Q1.1"),
             "finito " .. arresto.nome .. " nella fase di " .. fase.nome .. " il ciclo non deve riprendere da solo")
    end)
  end
end

for _, arresto in ipairs {
  { nome = "l'emergenza", comincia = function() clic("ImgEm") end, finisce = function() clic("ImgEm") end },
  { nome = "lo Stop", comincia = function() premi(stop_ciclo) end, finisce = function() rilascia(stop_ciclo) end },
} do
  prova("Start durante " .. arresto.nome, 2, function()
    a_riposo()
    arresto.comincia()
    attendi(200)
    premi(start)
    attendi(300)
    local fermo = tutto_fermo()
    rilascia(start)
    attendi(300)
    arresto.finisce()
    attendi(1000)
    fermo = fermo and tutto_fermo()
    premi_per(start, 300)
    serve(carica(), "dopo " .. arresto.nome .. " Start deve cominciare il ciclo")
    sicuro(2, true, fermo, "durante " .. arresto.nome .. " Start non deve avviare nulla, nemmeno dopo")
  end)
end

for _, motore in ipairs {
  { nome = "M1", figura = "imgM(0)", uscita = pompa, luci = "...0.10",
    porta = function() return porta_a(function() return acceso(valvole[2]) end, "al prodotto B") end },
  { nome = "M2", figura = "imgM(1)", uscita = agitatore, luci = "....001",
    porta = function() return porta_a(mescolando, "alla mescolazione") end },
} do
  prova("termico di " .. motore.nome, 3, function()
    local va = motore.porta()
    attendi(300)
    va = serve(va and acceso(motore.uscita), motore.nome .. " deve essere in moto nella sua fase")
    local buie = lampade(hl, ".....00")
    clic(motore.figura)
    attendi(200)
    sicuro(1, va, not acceso(motore.uscita), "quando scatta il termico " .. motore.nome .. " deve fermarsi entro 0,2 secondi")
    punti(1, buie and lampade(hl, motore.luci), "con il termico di " .. motore.nome .. " scattato deve accendersi la sua lampada, HL7 o HL8")
    attendi(6000)
    sicuro(0.5, va, not acceso(motore.uscita) and not acceso(agitatore) and not acceso("Q1.2"),
           "con il termico di " .. motore.nome .. " scattato il passo deve aspettare")
    clic(motore.figura)
    attendi(500)
    if not acceso(motore.uscita) then premi_per(start, 300) end
    attendi(500)
    punti(0.5, acceso(motore.uscita), "riarmato il termico di " .. motore.nome .. " il passo deve andare avanti, da solo o con Start")
  end)
end

-- Fermata prima del primo litro, la pompa si riavvia a serbatoio vuoto quante volte si vuole.
local function avviamento()
  premi(start)
  attendi(150)
  local partita = acceso(pompa)
  rilascia(start)
  premi(stop_ciclo)
  attendi(150)
  rilascia(stop_ciclo)
  attendi(500)
  return partita and not acceso(pompa)
end

prova("manutenzione di M1", 5, function()
  a_riposo()
  local partiti = true
  for _ = 1, avviamenti - 1 do partiti = avviamento() and partiti end
  serve(partiti and not acceso("Q0.7"), "prima di " .. avviamenti .. " avviamenti HL0 deve essere spenta")
  for _ = 1, 2 do partiti = avviamento() and partiti end
  serve(partiti and si_accende("Q0.7"), "dopo " .. avviamenti .. " avviamenti HL0 deve accendersi")
  punti(2, partiti and not acceso("Q1.0"), "dopo " .. avviamenti .. " avviamenti di M1 (al più tardi al sesto) deve accendersi HL0, e HL1 no")
  premi_per(azzera, 300)
  punti(1, partiti and not acceso("Q0.7"), "SB3 deve spegnere HL0")
  for _ = 1, avviamenti - 1 do partiti = avviamento() and partiti end
  local presto = acceso("Q0.7")
  for _ = 1, 2 do partiti = avviamento() and partiti end
  punti(2, partiti and not presto and si_accende("Q0.7"), "dopo SB3 il conto deve ricominciare da zero")
end)

prova("manutenzione di M2", 4, function()
  porta_a(mescolando, "alla mescolazione")
  -- Il termico ferma e riavvia il mescolatore; il primo avviamento è quello della ricetta.
  local partiti, presto = true, acceso("Q1.0")
  for n = 2, avviamenti + 1 do
    attendi(300)
    clic("imgM(1)")
    attendi(300)
    local fermo = not acceso(agitatore)
    clic("imgM(1)")
    attendi(300)
    if not acceso(agitatore) then premi_per(start, 300) end
    partiti = partiti and fermo and acceso(agitatore)
    if n < avviamenti then presto = presto or acceso("Q1.0") end
  end
  serve(partiti, "riarmato il termico di M2 il mescolatore deve ripartire, da solo o con Start")
  punti(3, not presto and acceso("Q1.0"), "dopo " .. avviamenti .. " avviamenti di M2 (al più tardi al sesto) deve accendersi HL1")
  premi_per(azzera, 300)
  punti(1, not acceso("Q1.0"), "SB3 deve spegnere anche HL1")
end)

prova_di_sicurezza(58, function()
  porta_a(dopo_mescolazione(), "alla fine della mescolazione")
  gira(sa)
  return (attendi_quando(function() return litri() == 0 end, 120000))
end, "Start e SA devono portare la ricetta fino alla fine dello scarico")
