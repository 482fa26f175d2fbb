-- US-17, asse con controllo analogico di posizione. Da avviare con --impianto 17.
-- MA (Q0.0) avanti, MI (Q0.1) indietro, AC (Q0.2) potenza, VC (AQW0) velocità. Start I0.0, Stop I0.1
-- (NC), SB1 avanti e SB2 indietro in manuale, SB3 I0.4 chiuso = manuale. SQ1 I0.5 e SQ2 I0.6 (NC)
-- fuori corsa.
-- In automatico Start dà la potenza e la slitta va al riferimento (AIW2); si ferma dentro la fascia di
-- isteresi (AIW4). Stop la ferma. Le velocità sono libere: per andare dove deve ha 200 secondi.

local start, fine, avanti, indietro, selettore = "imgP(0)", "imgP(1)", "imgP(2)", "imgP(3)", "imgCom"
local tempo_massimo = 200000

local function in_moto()
  return leggi("Q0.2") == 1 and (leggi("Q0.0") == 1 or leggi("Q0.1") == 1)
end
local function volt() return (elemento("ShIndP").Left - 1440) / 588 end
local function vicino(riferimento, errore) return math.abs(volt() - riferimento) <= errore end

-- Aspetta guardando ogni 10 ms, e controlla a ogni scansione che i due versi non siano comandati
-- insieme.
local function aspetta(fino, ms)
  local mai_insieme, scansioni = true, 0
  local arrivato, passati = attendi_fino(function()
    if leggi("QB0") & 3 == 3 then mai_insieme = false end
    scansioni = scansioni + 1
    return scansioni % 10 == 0 and fino()
  end, ms)
  verifica(mai_insieme, "MA e MI non devono mai essere comandati insieme")
  return arrivato, passati
end
local function guarda(ms) aspetta(function() return false end, ms) end

local function premi_per(pulsante, ms)
  premi(pulsante)
  guarda(ms)
  rilascia(pulsante)
  guarda(100)
end

-- Ferma in questo punto per tutto questo tempo.
local function resta_a(riferimento, errore, ms)
  return not aspetta(function() return in_moto() or not vicino(riferimento, errore) end, ms)
end

local function va_a(riferimento, errore, ms)
  local arrivata, passati = aspetta(function() return not in_moto() and vicino(riferimento, errore) end, ms)
  return arrivata and resta_a(riferimento, errore, 10000), passati
end

-- Il riferimento in volt; l'isteresi al massimo, 0,1 V.
local function in_automatico(riferimento)
  regola("UpD2", 100)
  regola("UpD1", riferimento * 10)
  run()
  guarda(300)
  premi_per(start, 300)
end

local function in_manuale()
  clic(selettore)
  run()
  guarda(300)
  premi_per(start, 300)
end

prova("a riposo", function()
  run()
  punti(1, not aspetta(in_moto, 10000), "senza Start la slitta deve restare ferma")
end)

prova("va al riferimento", function()
  in_automatico(5)
  local arrivata, ms = va_a(5, 0.15, tempo_massimo)
  punti(4, arrivata, "dopo Start la slitta deve andare a 5 V e restarci; è a " .. string.format("%.2f V", volt()))
  punti(1, arrivata and ms <= 60000, "da lontano la slitta deve andare in fretta: 5 V in meno di un minuto")
end)

prova("segue il riferimento", function()
  in_automatico(3)
  local arrivata = verifica(va_a(3, 0.15, tempo_massimo), "dopo Start la slitta deve andare a 3 V e restarci")
  regola("UpD1", 10)
  local indietro_in_tempo = arrivata and va_a(1, 0.15, tempo_massimo)
  punti(3, indietro_in_tempo, "con il riferimento a 1 V la slitta deve tornare indietro; è a " .. string.format("%.2f V", volt()))
  regola("UpD1", 40)
  local a_meta = indietro_in_tempo and aspetta(function() return volt() > 2 end, tempo_massimo) and in_moto()
  regola("UpD1", 5)
  punti(2, a_meta and va_a(0.5, 0.15, tempo_massimo), "se il riferimento cambia a metà corsa la slitta deve invertire")
end)

prova("estremi della corsa", function()
  in_automatico(10)
  local in_fondo = va_a(10, 0.15, tempo_massimo)
  punti(2, in_fondo, "la slitta deve arrivare a 10 V; è a " .. string.format("%.2f V", volt()))
  regola("UpD1", 0)
  punti(2, in_fondo and va_a(0, 0.15, tempo_massimo), "la slitta deve tornare a 0 V; è a " .. string.format("%.2f V", volt()))
end)

prova("isteresi stretta", function()
  in_automatico(1.5)
  regola("UpD2", 20)
  punti(2, va_a(1.5, 0.03, 2 * tempo_massimo),
        "con un'isteresi di 0,02 V la slitta deve rallentare e fermarsi vicino al riferimento; è a " ..
        string.format("%.3f V", volt()))
end)

prova("Stop", function()
  in_automatico(8)
  verifica(aspetta(function() return volt() > 0.3 end, 30000) and in_moto(), "dopo Start la slitta deve muoversi")
  local si_muoveva = in_moto()
  premi(fine)
  guarda(100)
  punti(2, si_muoveva and not in_moto(), "premuto Stop la slitta deve fermarsi")
  rilascia(fine)
  punti(1, si_muoveva and not aspetta(in_moto, 5000), "rilasciato Stop la slitta non deve ripartire da sola")
  premi_per(start, 300)
  punti(1, si_muoveva and in_moto(), "dopo uno Stop la slitta deve ripartire con Start")
end)

prova("manuale", function()
  in_manuale()
  verifica(not in_moto(), "in manuale senza SB1 e SB2 la slitta deve restare ferma")
  local prima = volt()
  premi(avanti)
  guarda(10000)
  local andata = volt() > prima + 0.05
  punti(1, andata, "in manuale SB1 deve portare avanti la slitta")
  rilascia(avanti)
  guarda(100)
  punti(1, andata and not in_moto(), "rilasciato SB1 la slitta deve fermarsi")
  prima = volt()
  premi(indietro)
  guarda(5000)
  local tornata = volt() < prima - 0.02
  punti(1, tornata, "in manuale SB2 deve portare indietro la slitta")
  rilascia(indietro)
  guarda(100)
  punti(1, tornata and not in_moto(), "rilasciato SB2 la slitta deve fermarsi")
  premi(avanti)
  premi(indietro)
  guarda(1000)
  rilascia(avanti)
  rilascia(indietro)
end)

prova("fuori corsa avanti", function()
  in_manuale()
  premi(avanti)
  local raggiunto = aspetta(function() return leggi("I0.6") == 0 end, 2 * tempo_massimo)
  guarda(5000)
  punti(1, raggiunto and not in_moto() and volt() < 10.3, "sul fuori corsa SQ2 la slitta deve fermarsi")
  rilascia(avanti)
  guarda(500)
  premi(indietro)
  punti(1, raggiunto and aspetta(function() return volt() < 10 end, 60000), "dal fuori corsa SQ2 SB2 deve far rientrare la slitta")
  rilascia(indietro)
end)

prova("fuori corsa indietro", function()
  in_manuale()
  premi(indietro)
  local raggiunto = aspetta(function() return leggi("I0.5") == 0 end, tempo_massimo)
  guarda(5000)
  punti(1, raggiunto and not in_moto() and volt() > -0.4, "sul fuori corsa SQ1 la slitta deve fermarsi")
  rilascia(indietro)
  guarda(500)
  premi(avanti)
  punti(1, raggiunto and aspetta(function() return volt() > 0 end, 60000), "dal fuori corsa SQ1 SB1 deve far rientrare la slitta")
  rilascia(avanti)
end)

prova("fuori corsa azionato a mano", function()
  in_automatico(8)
  aspetta(function() return volt() > 0.5 end, 60000)
  local si_muoveva, prima = in_moto(), volt()
  aspetta(function() return volt() ~= prima end, 5000)
  clic("imgFCA")
  guarda(30)
  punti(1, si_muoveva and leggi("Q0.0") == 0, "con SQ2 aperto la slitta non deve andare avanti")
end)
