-- US-17, asse con controllo analogico di posizione. Da avviare con --impianto 17.
-- MA (Q0.0) avanti, MI (Q0.1) indietro, AC (Q0.2) potenza, VC (AQW0) velocità. Start I0.0, Stop I0.1
-- (NC), SB1 avanti e SB2 indietro in manuale, SB3 I0.4 chiuso = manuale. SQ1 I0.5 e SQ2 I0.6 (NC)
-- fuori corsa. Lampade da Q0.3 a Q1.0.

usa("sicurezza.lua")

local start, fine, avanti, indietro, selettore = "imgP(0)", "imgP(1)", "imgP(2)", "imgP(3)", "imgCom"
local tempo_massimo = 120000

local function acceso(punto) return leggi(punto) == 1 end
local function potenza() return acceso("Q0.2") end
local function in_moto() return potenza() and (acceso("Q0.0") or acceso("Q0.1")) end
local function va_avanti() return potenza() and acceso("Q0.0") end
local function va_indietro() return potenza() and acceso("Q0.1") end
local function volt() return (elemento("ShIndP").Left - 1440) / 588 end
local function vicino(riferimento, errore) return math.abs(volt() - riferimento) <= errore end
-- La tensione di controllo, con un decimo di volt di tolleranza.
local function velocita(v) return math.abs(leggi("AQW0") / 3200 - v) <= 0.1 end

-- Aspetta, e controlla a ogni scansione che i due versi non siano comandati insieme.
local function aspetta(fino, ms)
  return attendi_quando(function()
    if leggi("QB0") & 3 == 3 then pericolo("MA e MI non devono mai essere comandati insieme") end
    return fino()
  end, ms)
end
local function guarda(ms) aspetta(function() return false end, ms) end

local function premi_per(pulsante, ms)
  premi(pulsante)
  guarda(ms)
  rilascia(pulsante)
  guarda(100)
end

local function va_a(riferimento, errore, ms)
  local arrivata, passati = aspetta(function() return not in_moto() and vicino(riferimento, errore) end, ms)
  return arrivata and not aspetta(function() return in_moto() or not vicino(riferimento, errore) end, 10000), passati
end

-- Senza Start non c'è potenza: chi la dà da solo non guadagna niente di quello che segue.
local function avvia()
  run()
  guarda(300)
  serve(not potenza(), "senza Start non deve esserci potenza (AC)")
  premi_per(start, 300)
  return serve(potenza(), "Start deve dare la potenza (AC)")
end

-- Il riferimento in volt; l'isteresi al massimo, 0,1 V.
local function in_automatico(riferimento)
  regola("UpD2", 100)
  regola("UpD1", riferimento * 10)
  return avvia()
end

local function in_manuale()
  clic(selettore)
  return avvia()
end

prova("Start e Stop", 5, function()
  regola("UpD1", 80)
  run()
  guarda(3000)
  sicuro(1, true, not potenza() and not in_moto(), "senza Start non deve esserci potenza (AC)")
  premi_per(start, 300)
  local parte = serve(potenza() and in_moto(), "Start deve dare la potenza, che resta, e la slitta deve muoversi")
  punti(1, parte, "Start deve dare la potenza, che resta quando lo rilasci")
  guarda(3000)
  premi(fine)
  guarda(100)
  sicuro(1, parte, not potenza(), "premuto Stop la potenza deve cadere entro un decimo di secondo")
  rilascia(fine)
  sicuro(1, parte, not aspetta(potenza, 5000), "rilasciato Stop la potenza non deve tornare da sola")
  premi_per(start, 300)
  punti(1, potenza() and in_moto(), "dopo uno Stop un nuovo Start deve far ripartire la slitta")
end)

prova("va al riferimento", 5, function()
  in_automatico(5)
  local arrivata, ms = va_a(5, 0.15, tempo_massimo)
  serve_e_vale(3, arrivata, "dopo Start la slitta deve andare a 5 V (0,15 V in più o in meno) e restarci")
  print("in " .. ms .. " ms")
  punti(2, ms <= 60000, "da lontano la slitta deve andare in fretta: da 0 a 5 V in meno di un minuto")
end)

prova("segue il riferimento", 3, function()
  in_automatico(3)
  serve(va_a(3, 0.15, tempo_massimo), "dopo Start la slitta deve andare a 3 V e restarci")
  regola("UpD1", 10)
  local tornata = va_a(1, 0.15, tempo_massimo)
  punti(1.5, tornata, "con il riferimento più basso la slitta deve tornare indietro, da 3 a 1 V")
  regola("UpD1", 40)
  local a_meta = tornata and aspetta(function() return volt() > 2 end, tempo_massimo) and in_moto()
  regola("UpD1", 5)
  punti(1.5, a_meta and va_a(0.5, 0.15, tempo_massimo), "se il riferimento cambia a metà corsa la slitta deve invertire")
end)

prova("estremi della corsa", 2, function()
  in_automatico(10)
  local in_fondo = va_a(10, 0.15, tempo_massimo)
  punti(1, in_fondo, "la slitta deve arrivare a 10 V")
  regola("UpD1", 0)
  punti(1, in_fondo and va_a(0, 0.15, tempo_massimo), "la slitta deve tornare da 10 a 0 V")
end)

prova("isteresi", 4, function()
  in_automatico(1.5)
  regola("UpD2", 20)
  local stretta = va_a(1.5, 0.03, 2 * tempo_massimo)
  punti(2, stretta, "con un'isteresi di 0,02 V la slitta deve fermarsi a meno di 0,03 V dal riferimento")
  -- Un decimo di volt più in là, con l'isteresi larga si è ancora in posizione.
  regola("UpD2", 100)
  guarda(500)
  regola("UpD1", volt() > 1.5 and 16 or 14)
  punti(2, stretta and not aspetta(in_moto, 5000),
        "dentro la fascia di isteresi (0,1 V) la slitta deve restare ferma anche se il riferimento cambia poco")
end)

-- Guarda la velocità finché la slitta arriva: lontano, più di 0,12 V; vicino, meno di 0,08 V. Il valore
-- conta quando la slitta è ferma sul passo da un po', perché il programma la legge con ritardo.
local function velocita_fino_a(riferimento)
  local lontano, vicino_, luce, prima, da, ora = nil, nil, false, volt(), 0, 0
  local in_marcia, veloce, lenta, in_posizione
  local function giudica()
    if not in_marcia then return end
    local manca = math.abs(riferimento - prima)
    if manca > 0.12 then lontano = lontano ~= false and veloce end
    if manca < 0.08 and manca > 0.02 then vicino_ = vicino_ ~= false and lenta end
    luce = luce or in_posizione
  end
  local passati = 0
  local function guarda(ms)
    local adesso = passati + ms + 1
    local matura = da + 60
    if matura > ora and matura < adesso then giudica() end  -- intanto si vedeva quello di prima
    ora = adesso
    if volt() ~= prima then prima, da = volt(), ora end
    in_marcia, veloce, lenta, in_posizione = in_moto(), velocita(8), velocita(2), acceso("Q0.7")
    if ora == da + 60 then giudica() end
    return passati > 0 and not in_marcia
  end
  attendi_quando(guarda, 1000)  -- prima di finire la slitta deve poter partire
  passati = 1000
  local arrivata = attendi_quando(guarda, tempo_massimo - passati)
  return arrivata and vicino(riferimento, 0.03), lontano, vicino_, luce
end

prova("due velocità", 5, function()
  in_automatico(4.4)
  regola("UpD2", 10)
  for _, verso in ipairs { { riferimento = 4.4, da = "da sotto" }, { riferimento = 2.2, da = "da sopra" } } do
    regola("UpD1", math.floor(verso.riferimento * 10 + 0.5))
    local arrivata, lontano, vicino_, luce = velocita_fino_a(verso.riferimento)
    serve(arrivata, "con 0,01 V di isteresi la slitta deve fermarsi a meno di 0,03 V dal riferimento, " .. verso.da)
    punti(1, lontano, "quando mancano più di 0,12 V la velocità deve essere 8 V, " .. verso.da)
    punti(1, vicino_, "quando mancano meno di 0,08 V la velocità deve essere 2 V, " .. verso.da)
    punti(0.5, not luce, "HL5 in posizione deve restare spenta finché la slitta si muove, " .. verso.da)
  end
end)

prova("manuale", 8, function()
  in_manuale()
  sicuro(1, potenza(), not aspetta(in_moto, 3000), "in manuale senza SB1 e SB2 la slitta deve restare ferma")
  local prima = volt()
  premi(avanti)
  guarda(10000)
  local andata = serve(va_avanti() and volt() > prima + 0.05, "in manuale SB1 deve portare avanti la slitta")
  punti(1, andata, "in manuale SB1 deve portare avanti la slitta")
  punti(1, velocita(6), "in manuale la velocità deve essere 6 V, avanti")
  rilascia(avanti)
  guarda(100)
  sicuro(1, andata, not in_moto(), "rilasciato SB1 la slitta deve fermarsi entro un decimo di secondo")
  prima = volt()
  premi(indietro)
  guarda(5000)
  local tornata = serve(va_indietro() and volt() < prima - 0.02, "in manuale SB2 deve portare indietro la slitta")
  punti(1, tornata, "in manuale SB2 deve portare indietro la slitta")
  punti(1, velocita(6), "in manuale la velocità deve essere 6 V, indietro")
  rilascia(indietro)
  guarda(100)
  sicuro(1, tornata, not in_moto(), "rilasciato SB2 la slitta deve fermarsi entro un decimo di secondo")
  premi(fine)
  guarda(100)
  rilascia(fine)
  guarda(100)
  premi(avanti)
  guarda(500)
  sicuro(1, tornata, not potenza() and not in_moto(), "senza potenza SB1 non deve muovere la slitta")
  rilascia(avanti)
  -- SB1 e SB2 insieme: qualunque cosa, ma non i due versi.
  premi_per(start, 300)
  premi(avanti)
  guarda(300)
  premi(indietro)
  guarda(1000)
  rilascia(avanti)
  rilascia(indietro)
end)

prova("selettore", 3, function()
  in_automatico(5)
  serve(va_a(5, 0.15, tempo_massimo), "dopo Start la slitta deve andare a 5 V e restarci")
  premi(avanti)
  sicuro(1, true, not aspetta(in_moto, 1000), "in automatico SB1 e SB2 non devono muovere la slitta")
  rilascia(avanti)
  premi(indietro)
  sicuro(1, true, not aspetta(in_moto, 1000), "in automatico SB2 non deve muovere la slitta")
  rilascia(indietro)
  regola("UpD1", 90)
  serve(aspetta(in_moto, 2000), "la slitta deve seguire il riferimento")
  guarda(1000)
  clic(selettore)
  guarda(100)
  sicuro(1, true, not in_moto(), "passando in manuale la slitta deve fermarsi entro un decimo di secondo")
end)

for _, corsa in ipairs {
  { nome = "avanti", va = avanti, torna = indietro, micro = "I0.6", sq = "SQ2", oltre = function() return volt() > 10.4 end, rientra = va_indietro },
  { nome = "indietro", va = indietro, torna = avanti, micro = "I0.5", sq = "SQ1", oltre = function() return volt() < -0.4 end, rientra = va_avanti },
} do
  prova("fuori corsa " .. corsa.nome, 4, function()
    in_manuale()
    premi(corsa.va)
    local raggiunto = serve(aspetta(function() return leggi(corsa.micro) == 0 end, 2 * tempo_massimo),
                            "in manuale la slitta deve arrivare al fuori corsa " .. corsa.sq)
    guarda(3000)
    sicuro(1, raggiunto, not in_moto() and not corsa.oltre(), "sul fuori corsa " .. corsa.sq .. " la slitta deve fermarsi")
    rilascia(corsa.va)
    guarda(300)
    premi(corsa.va)
    sicuro(1, raggiunto, not aspetta(in_moto, 1000), "dal fuori corsa " .. corsa.sq .. " la slitta non deve poter proseguire")
    rilascia(corsa.va)
    guarda(300)
    punti(1, acceso("Q1.0"), "sul fuori corsa " .. corsa.sq .. " HL6 deve essere accesa")
    premi(corsa.torna)
    guarda(300)
    punti(1, corsa.rientra() and aspetta(function() return leggi(corsa.micro) == 1 end, 60000),
          "dal fuori corsa " .. corsa.sq .. " la slitta deve poter rientrare")
    rilascia(corsa.torna)
  end)
end

prova("fuori corsa in automatico", 2, function()
  in_automatico(8)
  serve(aspetta(function() return volt() > 0.5 end, 60000), "dopo Start la slitta deve andare verso il riferimento")
  local si_muoveva, prima = va_avanti(), volt()
  aspetta(function() return volt() ~= prima end, 5000)
  clic("imgFCA")
  guarda(30)
  sicuro(1, si_muoveva, not acceso("Q0.0"), "anche in automatico con SQ2 azionato la slitta non deve andare avanti")
  clic("imgFCA")
  serve(va_a(8, 0.15, tempo_massimo), "liberato SQ2 la slitta deve andare al riferimento")
  regola("UpD1", 20)
  serve(aspetta(function() return volt() < 7 end, 60000), "con il riferimento più basso la slitta deve tornare indietro")
  si_muoveva, prima = va_indietro(), volt()
  aspetta(function() return volt() ~= prima end, 5000)
  clic("imgFCI")
  guarda(30)
  sicuro(1, si_muoveva, not acceso("Q0.1"), "anche in automatico con SQ1 azionato la slitta non deve andare indietro")
end)

-- Tutte le lampade in un momento: "1" accesa, "0" spenta, "." non importa.
local function lampade(attese)
  for n, punto in ipairs { "Q0.3", "Q0.4", "Q0.5", "Q0.6", "Q0.7", "Q1.0" } do
    local attesa = attese:sub(n, n)
    if attesa ~= "." and leggi(punto) ~= tonumber(attesa) then return false end
  end
  return true
end

prova("lampade", 6, function()
  regola("UpD2", 100)
  regola("UpD1", 30)
  run()
  guarda(500)
  serve(lampade("01000."), "prima di Start delle lampade deve essere accesa soltanto HL2, automatico")
  premi_per(start, 300)
  guarda(1000)
  serve(va_avanti(), "dopo Start la slitta deve andare verso il riferimento")
  punti(2, lampade("111000"), "in moto avanti devono essere accese HL1 potenza, HL2 automatico e HL3 avanti")
  serve(va_a(3, 0.15, tempo_massimo), "la slitta deve fermarsi al riferimento")
  punti(1, lampade("110010"), "al riferimento devono essere accese HL1, HL2 e HL5 in posizione")
  regola("UpD1", 10)
  guarda(1000)
  punti(1, va_indietro() and lampade("110100"), "in moto indietro devono essere accese HL1, HL2 e HL4 indietro")
  clic(selettore)
  guarda(300)
  punti(1, lampade("10000."), "in manuale e ferma lontano dal riferimento deve essere accesa soltanto HL1")
  premi_per(fine, 300)
  local spente = lampade("00000.")
  premi(indietro)
  guarda(300)
  punti(1, spente and lampade("00000."), "dopo Stop, in manuale, le lampade devono essere spente, anche premendo SB2")
  rilascia(indietro)
end)

prova("STOP e RUN", 1, function()
  in_automatico(8)
  serve(aspetta(function() return volt() > 0.3 end, 30000) and in_moto(), "dopo Start la slitta deve muoversi")
  stop()
  attendi(2000)
  run()
  sicuro(1, true, not aspetta(potenza, 3000), "dopo STOP e RUN la potenza deve aspettare un nuovo Start")
end)

prova_di_sicurezza(45, function()
  in_automatico(5)
  return (va_a(5, 0.15, tempo_massimo))
end, "dopo Start la slitta deve andare al riferimento")
