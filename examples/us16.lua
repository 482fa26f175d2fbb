-- US-16, semaforo pedonale a chiamata. Da avviare con --impianto 16.
-- Pedoni: rossa Q0.0, verde Q0.1. Veicoli: rossa Q0.2, gialla Q0.3, verde Q0.4. Chiamate: SB2 I0.0,
-- SB1 I0.1.
-- I tempi chiesti si cambiano qui, in millisecondi. Il verde dei pedoni può lampeggiare.
local verde_minimo, giallo, primo_rosso, verde_pedoni, secondo_rosso = 10000, 3000, 2000, 8000, 3000
local tolleranza = 500

usa("sicurezza.lua")

local un_minuto = 60000
local ciclo_atteso = "verde veicoli, giallo, tutto rosso, verde pedoni, tutto rosso, verde veicoli"

local function accesa(punto) return leggi(punto) == 1 end

local function fase_adesso()
  if accesa("Q0.1") then return "verde pedoni" end
  if accesa("Q0.4") then return "verde veicoli" end
  if accesa("Q0.3") then return "giallo" end
  if accesa("Q0.2") then return "tutto rosso" end
end

local function nuova_osservazione()
  return { fasi = {}, ora = 0, da = 0, veicoli = 0, pedoni = 0 }
end

-- Aggiunge la fase che comincia adesso. Il verde dei pedoni che lampeggia resta una fase sola.
local function nuova_fase(o)
  local nome, fasi = fase_adesso(), o.fasi
  local ultima, penultima = fasi[#fasi], fasi[#fasi - 1]
  if not nome or (ultima and ultima.nome == nome) then return end
  if nome == "verde pedoni" and penultima and penultima.nome == nome and o.ora - ultima.inizio <= 1100 then
    fasi[#fasi] = nil
  else
    fasi[#fasi + 1] = { nome = nome, inizio = o.ora }
  end
end

-- Le lampade accese finora: un cambio può durare qualche scansione, e il verde che lampeggia è spento al
-- massimo per un secondo; il resto del tempo una luce c'è.
local function giudica(o)
  local lampade, da_quanto = o.lampade, o.ora - o.da
  if not lampade then return end
  if da_quanto >= 50 and not o.giudicata then
    o.giudicata = true
    if (lampade >> 2 & 1) + (lampade >> 3 & 1) + (lampade >> 4 & 1) ~= 1 then o.veicoli = o.veicoli + 1 end
    local pedoni_al_verde = #o.fasi > 0 and o.fasi[#o.fasi].nome == "verde pedoni"
    local rossa, verde = lampade & 1 ~= 0, lampade & 2 ~= 0
    if rossa and verde or not rossa and not verde and not pedoni_al_verde and lampade & 4 == 0 then
      o.pedoni = o.pedoni + 1
    end
  end
  if lampade & 3 == 0 and da_quanto >= 1100 and not o.buio then
    o.pedoni, o.buio = o.pedoni + 1, true
  end
end

local function segna(o)
  local lampade = leggi("QB0") & 31
  giudica(o)
  if #o.fasi > 0 then o.fasi[#o.fasi].fine = o.ora end
  if lampade ~= o.lampade then
    o.lampade, o.da, o.giudicata, o.buio = lampade, o.ora, false, false
    local rosso, altre = lampade & 4 ~= 0, lampade & 24 ~= 0
    if accesa("Q0.1") and (altre or not rosso) then
      pericolo("con il verde ai pedoni i veicoli devono avere il rosso e nient'altro")
    end
    nuova_fase(o)
  end
  if #o.fasi > 0 then o.fasi[#o.fasi].fine = o.ora end
end

local function osserva(o, ms, fino)
  local inizio = o.ora
  local vero, passati = attendi_quando(function(adesso)
    o.ora = inizio + adesso
    segna(o)
    return fino and fino()
  end, ms)
  o.ora = inizio + passati
  segna(o)
  return vero, passati
end

local function in_riga(o)
  local nomi = {}
  for n, fase in ipairs(o.fasi) do nomi[n] = fase.nome end
  return table.concat(nomi, ", ")
end

local function quante(o, nome)
  local totale = 0
  for _, fase in ipairs(o.fasi) do
    if fase.nome == nome then totale = totale + 1 end
  end
  return totale
end

local function lunga(fase) return fase.fine - fase.inizio end

-- Quanto dura la fase con questo nome, la prima o la seconda volta; 0 se non c'è.
local function durata(o, nome, volta)
  for _, fase in ipairs(o.fasi) do
    if fase.nome == nome then volta = volta - 1 end
    if volta == 0 then return lunga(fase) end
  end
  return 0
end

-- Tiene premuto un pulsante, guardando intanto le lampade.
local function chiama(o, pulsante, ms)
  premi(pulsante)
  osserva(o, ms)
  rilascia(pulsante)
end

local function verde_ai_pedoni() return accesa("Q0.1") end
local function giallo_ai_veicoli() return accesa("Q0.3") end
local function verde_ai_veicoli() return accesa("Q0.4") end

-- Verde ai veicoli da più del verde minimo, e nessuna chiamata.
local function a_riposo()
  run()
  attendi(20000)
  return serve(leggi("QB0") & 31 == 17, "senza prenotazioni i veicoli devono avere il verde e i pedoni il rosso")
end

local function giusto(misurata, chiesta)
  return misurata >= chiesta - tolleranza and misurata <= chiesta + tolleranza
end
local function secondi(ms) return string.format("%g", ms / 1000):gsub("%.", ",") .. " secondi" end
local function circa(ms) return secondi(ms) .. " (mezzo secondo in più o in meno)" end

prova("senza prenotazioni", 2, function()
  a_riposo()
  local o = nuova_osservazione()
  osserva(o, 40000)
  punti(2, in_riga(o) == "verde veicoli" and o.veicoli == 0 and accesa("Q0.0"),
        "senza prenotazioni i veicoli devono avere sempre il verde e i pedoni il rosso")
end)

for _, pulsante in ipairs { "imgSB(0)", "imgSB(1)" } do
  local nome = pulsante == "imgSB(0)" and "SB2" or "SB1"
  prova("prenotazione con " .. nome, 11, function()
    local fermo = a_riposo()
    local o = nuova_osservazione()
    osserva(o, 100)
    chiama(o, pulsante, 200)
    serve(osserva(o, 2000, giallo_ai_veicoli), "con il verde minimo già passato " .. nome .. " deve dare il giallo entro 2 secondi")
    punti(1, giallo_ai_veicoli(), "con il verde minimo già passato " .. nome .. " deve dare il giallo entro 2 secondi")
    serve(osserva(o, un_minuto, verde_ai_pedoni), "premuto " .. nome .. " i pedoni devono avere il verde")
    osserva(o, un_minuto)
    local ciclo = in_riga(o) == ciclo_atteso
    if not ciclo then print("visto: " .. in_riga(o)) end
    punti(2, ciclo, "il ciclo deve essere " .. ciclo_atteso)
    punti(1, ciclo and o.veicoli == 0, "per i veicoli deve essere accesa sempre una lampada, e una sola")
    punti(1, ciclo and o.pedoni == 0, "per i pedoni deve essere accesa sempre una lampada, e una sola (il verde può lampeggiare)")
    local g, p = durata(o, "giallo", 1), durata(o, "verde pedoni", 1)
    local prima, dopo = durata(o, "tutto rosso", 1), durata(o, "tutto rosso", 2)
    print("giallo " .. g .. " ms, tutto rosso " .. prima .. ", verde ai pedoni " .. p .. ", tutto rosso " .. dopo)
    local provato = fermo and p > 0
    if provato and (g < 2000 or prima < 1000 or dopo < 1000) then
      pericolo("il giallo e i due «tutto rosso» non possono mancare né essere molto più corti")
    end
    punti(1.5, provato and giusto(g, giallo), "il giallo deve durare " .. circa(giallo))
    punti(1.5, provato and giusto(prima, primo_rosso), "prima del verde ai pedoni il tutto rosso deve durare " .. circa(primo_rosso))
    punti(1.5, provato and giusto(p, verde_pedoni), "il verde ai pedoni deve durare " .. circa(verde_pedoni))
    punti(1.5, provato and giusto(dopo, secondo_rosso), "dopo il verde ai pedoni il tutto rosso deve durare " .. circa(secondo_rosso))
  end)
end

prova("memoria e verde minimo", 4, function()
  a_riposo()
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  osserva(o, un_minuto, verde_ai_pedoni)
  serve(verde_ai_pedoni(), "premuto SB2 i pedoni devono avere il verde")
  serve(osserva(o, un_minuto, verde_ai_veicoli), "dopo i pedoni i veicoli devono avere di nuovo il verde")
  local verde = nuova_osservazione()
  osserva(verde, 300)
  chiama(verde, "imgSB(1)", 100)
  punti(2, osserva(verde, un_minuto, verde_ai_pedoni),
        "una prenotazione breve durante il verde minimo deve restare in memoria fino al verde dei pedoni")
  local ms = durata(verde, "verde veicoli", 1)
  print("verde ai veicoli " .. ms .. " ms")
  punti(2, ms >= verde_minimo - 200 and ms <= verde_minimo + 2000,
        "con una prenotazione il verde ai veicoli deve durare " .. secondi(verde_minimo) .. " (fino a 2 in più)")
end)

prova("prenotazione durante lo sgombero", 1, function()
  a_riposo()
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  osserva(o, un_minuto, verde_ai_pedoni)
  local sgombero = false
  for _ = 1, 20 do  -- fra un lampeggio e l'altro il verde dei pedoni è spento per meno di un secondo e mezzo
    if not osserva(o, un_minuto, function() return fase_adesso() == "tutto rosso" end) then break end
    sgombero = not osserva(o, 1500, function() return fase_adesso() ~= "tutto rosso" end)
    if sgombero then break end
  end
  serve(sgombero and not verde_ai_pedoni(), "dopo il verde dei pedoni ci vuole il tutto rosso")
  chiama(o, "imgSB(1)", 200)
  osserva(o, un_minuto, verde_ai_veicoli)
  punti(1, osserva(o, un_minuto, verde_ai_pedoni), "una prenotazione nel tutto rosso dopo i pedoni deve valere per il giro seguente")
end)

prova("pulsante incastrato", 2, function()
  a_riposo()
  premi("imgSB(0)")
  local o, breve = nuova_osservazione(), false
  osserva(o, 2 * un_minuto)
  for n = 2, #o.fasi - 1 do
    local fase = o.fasi[n]
    if fase.nome == "verde veicoli" and lunga(fase) < verde_minimo - 200 then breve = true end
  end
  serve(quante(o, "verde pedoni") > 1, "con un pulsante incastrato i pedoni devono avere il verde a ogni giro")
  punti(2, not breve, "anche con un pulsante incastrato i veicoli devono avere il loro verde minimo")
end)

prova("più prenotazioni", 3, function()
  a_riposo()
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  chiama(o, "imgSB(1)", 200)
  serve(osserva(o, 5000, giallo_ai_veicoli), "premuto un pulsante i veicoli devono avere il giallo")
  osserva(o, 500)
  chiama(o, "imgSB(0)", 200)
  osserva(o, 90000)
  punti(3, quante(o, "verde pedoni") == 1 and verde_ai_veicoli(),
        "più prenotazioni prima dello stesso verde devono valere una sola, e il verde dei pedoni le cancella")
end)

prova("STOP e RUN durante il verde ai pedoni", 2, function()
  a_riposo()
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  serve(osserva(o, un_minuto, verde_ai_pedoni), "premuto SB2 i pedoni devono avere il verde")
  osserva(o, 1000)
  stop()
  attendi(5000)
  run()
  o = nuova_osservazione()
  osserva(o, 40000)
  serve(verde_ai_veicoli(), "dopo STOP e RUN i veicoli devono riavere il verde entro 40 secondi")
  chiama(o, "imgSB(1)", 200)
  punti(2, osserva(o, un_minuto, verde_ai_pedoni), "dopo STOP e RUN il semaforo deve riprendere a funzionare")
end)

prova("STOP e RUN durante il giallo", 2, function()
  a_riposo()
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  serve(osserva(o, 5000, giallo_ai_veicoli), "premuto un pulsante i veicoli devono avere il giallo")
  osserva(o, 500)
  stop()
  attendi(5000)
  run()
  o = nuova_osservazione()
  osserva(o, 40000)
  serve(verde_ai_veicoli(), "dopo STOP e RUN i veicoli devono riavere il verde entro 40 secondi")
  punti(2, o.veicoli == 0 and o.pedoni == 0, "anche dopo STOP e RUN per i veicoli, e per i pedoni, deve essere accesa una lampada e una sola")
end)

prova_di_sicurezza(31, function()
  a_riposo()
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  return osserva(o, un_minuto, verde_ai_pedoni) and (osserva(o, un_minuto, verde_ai_veicoli))
end, "dopo una prenotazione i pedoni devono avere il verde, e poi i veicoli")
