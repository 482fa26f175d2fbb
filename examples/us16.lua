-- US-16, semaforo pedonale a chiamata. Da avviare con --impianto 16.
-- Pedoni: rossa Q0.0, verde Q0.1. Veicoli: rossa Q0.2, gialla Q0.3, verde Q0.4. Chiamate: SB2 I0.0,
-- SB1 I0.1.
-- Ciclo chiesto: verde ai veicoli (almeno 5 s) finché un pedone non chiama, giallo (da 2 a 6 s),
-- tutto rosso (almeno 1 s), verde ai pedoni (da 4 a 30 s), tutto rosso, verde ai veicoli. Il verde
-- dei pedoni può lampeggiare. Dalla chiamata al verde dei pedoni non deve passare più di un minuto.

local un_minuto = 60000
local ciclo_atteso = "verde veicoli, giallo, tutto rosso, verde pedoni, tutto rosso, verde veicoli"

local function accesa(punto) return leggi(punto) == 1 end

local function fase_adesso()
  if accesa("Q0.1") then return "verde pedoni" end
  if accesa("Q0.4") then return "verde veicoli" end
  if accesa("Q0.3") then return "giallo" end
  if accesa("Q0.2") then return "tutto rosso" end
end

-- Le lampade che non vanno insieme, da sole o con le altre.
local function lampade_errate()
  local veicoli = leggi("Q0.2") + leggi("Q0.3") + leggi("Q0.4")
  return veicoli ~= 1 or (accesa("Q0.0") and accesa("Q0.1")) or (not accesa("Q0.2") and not accesa("Q0.0"))
end

local function nuova_osservazione()
  return { fasi = {}, ora = 0, da = 0, conflitto = false, errate = 0 }
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

local function segna(o)
  local lampade = leggi("QB0")
  o.ora = o.ora + 1
  if lampade ~= o.lampade then
    -- Un cambio di lampade può durare qualche scansione.
    if o.errata and o.ora - o.da > 50 then o.errate = o.errate + 1 end
    o.lampade, o.da, o.errata = lampade, o.ora, lampade_errate()
    if accesa("Q0.1") and (accesa("Q0.4") or accesa("Q0.3") or not accesa("Q0.2")) then o.conflitto = true end
    nuova_fase(o)
  end
  if #o.fasi > 0 then o.fasi[#o.fasi].fine = o.ora end
end

local function osserva(o, ms, fino)
  return attendi_fino(function()
    segna(o)
    return fino and fino()
  end, ms)
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

local function lunga(fase) return fase.fine - fase.inizio + 1 end

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
local function verde_ai_veicoli() return accesa("Q0.4") end

prova("senza chiamate", function()
  run()
  attendi(20000)
  local o = nuova_osservazione()
  osserva(o, 40000)
  punti(1, in_riga(o) == "verde veicoli" and accesa("Q0.0"),
        "senza chiamate i veicoli devono avere sempre il verde e i pedoni il rosso")
end)

for _, pulsante in ipairs { "imgSB(0)", "imgSB(1)" } do
  local nome = pulsante == "imgSB(0)" and "SB2" or "SB1"
  prova("chiamata con " .. nome, function()
    run()
    attendi(20000)
    local o = nuova_osservazione()
    osserva(o, 100)
    chiama(o, pulsante, 200)
    punti(2, osserva(o, un_minuto, verde_ai_pedoni), "premuto " .. nome .. " i pedoni devono avere il verde")
    osserva(o, un_minuto)
    punti(2, in_riga(o) == ciclo_atteso, "il ciclo deve essere " .. ciclo_atteso .. ", non " .. in_riga(o))
    punti(1, o.errate == 0 and not o.errata,
          "deve essere accesa sempre una lampada sola per i veicoli, e la rossa dei pedoni finché i veicoli non hanno il rosso")
    verifica(not o.conflitto, "con il verde ai pedoni i veicoli devono avere il rosso e nient'altro")
    local giallo, pedoni = durata(o, "giallo", 1), durata(o, "verde pedoni", 1)
    local prima, dopo = durata(o, "tutto rosso", 1), durata(o, "tutto rosso", 2)
    punti(0.5, giallo >= 2000 and giallo <= 6000, "il giallo deve durare da 2 a 6 secondi, non " .. giallo .. " ms")
    punti(0.5, prima >= 900, "prima del verde ai pedoni ci vuole un secondo di tutto rosso, non " .. prima .. " ms")
    punti(0.5, pedoni >= 4000 and pedoni <= 30000,
          "il verde ai pedoni deve durare da 4 a 30 secondi, non " .. pedoni .. " ms")
    punti(0.5, dopo >= 900, "dopo il verde ai pedoni ci vuole un secondo di tutto rosso, non " .. dopo .. " ms")
  end)
end

prova("chiamata appena tornato il verde ai veicoli", function()
  run()
  attendi(20000)
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  osserva(o, un_minuto, verde_ai_pedoni)
  osserva(o, un_minuto, verde_ai_veicoli)
  local verde = nuova_osservazione()
  osserva(verde, 300)
  chiama(verde, "imgSB(1)", 100)
  punti(1, osserva(verde, un_minuto, verde_ai_pedoni), "la chiamata deve restare in memoria fino al verde dei pedoni")
  local ms = durata(verde, "verde veicoli", 1)
  punti(1, ms >= 5000, "il verde ai veicoli deve durare almeno 5 secondi, non " .. ms .. " ms")
end)

prova("pulsante incastrato", function()
  run()
  attendi(20000)
  premi("imgSB(0)")
  local o, breve = nuova_osservazione(), false
  osserva(o, 2 * un_minuto)
  for n = 2, #o.fasi - 1 do
    local fase = o.fasi[n]
    if fase.nome == "verde veicoli" and lunga(fase) < 5000 then breve = true end
  end
  local servito = verifica(quante(o, "verde pedoni") > 0, "con un pulsante incastrato i pedoni devono avere il verde")
  punti(1, servito and not breve, "anche con un pulsante incastrato i veicoli devono avere almeno 5 secondi di verde")
  verifica(not o.conflitto, "con il verde ai pedoni i veicoli devono avere il rosso e nient'altro")
end)

prova("una chiamata dopo l'altra", function()
  run()
  attendi(20000)
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  chiama(o, "imgSB(1)", 200)
  osserva(o, un_minuto, function() return accesa("Q0.3") end)
  osserva(o, 500)
  chiama(o, "imgSB(0)", 200)
  osserva(o, 90000)
  punti(1, quante(o, "verde pedoni") == 1, "più chiamate prima dello stesso verde devono valere una sola")
end)

prova("fermata della CPU durante il verde ai pedoni", function()
  run()
  attendi(20000)
  local o = nuova_osservazione()
  chiama(o, "imgSB(0)", 200)
  osserva(o, un_minuto, verde_ai_pedoni)
  osserva(o, 1000)
  stop()
  attendi(5000)
  run()
  o = nuova_osservazione()
  osserva(o, un_minuto)
  verifica(not o.conflitto, "con il verde ai pedoni i veicoli devono avere il rosso e nient'altro")
  osserva(o, un_minuto, verde_ai_veicoli)
  local riprende = verde_ai_veicoli()
  chiama(o, "imgSB(1)", 200)
  punti(1, riprende and osserva(o, un_minuto, verde_ai_pedoni),
        "dopo una fermata della CPU il semaforo deve riprendere a funzionare")
end)
