-- US-09, cancello scorrevole. Da avviare con --impianto 9.
-- KM1 (Q0.2) chiude, KM2 (Q0.3) apre, lampeggiatore Q0.1. SQ1 aperto I0.0, SQ2 chiuso I0.2.
-- Il telecomando SB2 apre il cancello chiuso; la chiave apre e chiude (qui sotto, da che parte); SB3
-- ferma; aperto, il cancello si chiude da solo dopo 4-12 secondi con la via libera. In chiusura la
-- fotocellula e la costa fermano e riaprono. Prima di muoversi il cancello può lampeggiare fino a 2
-- secondi; i comandi a mezza corsa possono fermare o invertire.

local telecomando, arresto = "imgSB(0)", "imgSB(1)"
local chiave_apre, chiave_chiude = "etCom(2)", "etCom(1)"

local function chiude() return leggi("Q0.2") == 1 end
local function apre() return leggi("Q0.3") == 1 end
local function fermo() return not chiude() and not apre() end
local function aperto() return leggi("I0.0") == 0 end
local function chiuso() return leggi("I0.2") == 0 end

-- Aspetta, e controlla a ogni scansione che i due contattori non siano chiusi insieme.
local function aspetta(fino, ms)
  local mai_insieme = true
  local arrivato, passati = attendi_fino(function()
    if chiude() and apre() then mai_insieme = false end
    return fino()
  end, ms)
  verifica(mai_insieme, "i due contattori non devono mai essere chiusi insieme")
  return arrivato, passati
end
local function guarda(ms) aspetta(function() return false end, ms) end

local function premi_per(organo, ms)
  premi(organo)
  guarda(ms)
  rilascia(organo)
end

-- Resta fermo per questo tempo.
local function sta_fermo(ms) return not aspetta(function() return not fermo() end, ms) end

local function porta_ad_aperto()
  run()
  guarda(500)
  premi_per(telecomando, 300)
  return verifica(aspetta(aperto, 15000), "il telecomando deve aprire il cancello")
end

local function in_apertura()
  run()
  guarda(500)
  premi_per(telecomando, 300)
  local parte = verifica(aspetta(apre, 3000), "il telecomando deve aprire il cancello")
  guarda(1500)
  return parte and apre()
end

local function in_chiusura()
  porta_ad_aperto()
  local parte = verifica(aspetta(chiude, 20000), "il cancello aperto deve chiudersi da solo")
  guarda(1500)
  return parte and chiude()
end

-- Con il cancello a mezza corsa: succede un arresto, poi finisce.
local function prova_arresto(porta, punteggio, nome, comincia, finisce)
  local si_muove = verifica(porta(), "il cancello deve essere in movimento")
  comincia()
  guarda(200)
  punti(punteggio, si_muove and fermo(), nome .. " il cancello deve fermarsi")
  punti(1, si_muove and sta_fermo(2000), nome .. " il cancello deve restare fermo")
  finisce()
  verifica(sta_fermo(4000), "dopo l'arresto il cancello non deve ripartire da solo")
end

prova("a riposo", function()
  run()
  punti(1, sta_fermo(5000), "senza comandi il cancello chiuso deve restare fermo")
end)

prova("apertura con il telecomando", function()
  run()
  guarda(500)
  premi(telecomando)
  punti(1, aspetta(apre, 3000), "premuto il telecomando il cancello deve aprirsi")
  rilascia(telecomando)
  local lampeggia = aspetta(function() return leggi("Q0.1") == 1 end, 2000)
  local arrivato = aspetta(aperto, 15000)
  punti(2, arrivato, "basta un impulso: il cancello deve arrivare aperto (SQ1)")
  guarda(100)
  punti(2, arrivato and fermo(), "a cancello aperto (SQ1) il motore deve fermarsi")
  local dove = elemento("imgC").Left
  guarda(2000)
  punti(1, arrivato and elemento("imgC").Left == dove, "il cancello aperto deve restare dov'è")
  punti(1, lampeggia, "mentre il cancello si muove il lampeggiatore deve accendersi")
end)

prova("chiusura automatica", function()
  porta_ad_aperto()
  local parte, sosta = aspetta(chiude, 30000)
  punti(2, parte and sosta >= 4000 and sosta <= 12000,
        "il cancello aperto deve chiudersi da solo dopo 4-12 secondi, non " .. sosta .. " ms")
  local arrivato = parte and aspetta(chiuso, 15000)
  punti(2, arrivato, "il cancello deve arrivare chiuso (SQ2)")
  guarda(100)
  punti(2, arrivato and fermo() and sta_fermo(5000), "a cancello chiuso (SQ2) il motore deve fermarsi")
end)

prova("chiave", function()
  run()
  guarda(500)
  premi(chiave_apre)
  punti(1, aspetta(apre, 3000), "la chiave da un lato deve aprire il cancello")
  aspetta(aperto, 15000)
  rilascia(chiave_apre)
  verifica(aperto(), "con la chiave il cancello deve arrivare aperto")
  guarda(1000)
  premi(chiave_chiude)
  local parte = aspetta(chiude, 3000)
  punti(1, parte, "la chiave dall'altro lato deve chiudere il cancello")
  aspetta(chiuso, 15000)
  rilascia(chiave_chiude)
  guarda(100)
  punti(1, parte and chiuso() and fermo(), "con la chiave il cancello deve chiudersi e fermarsi")
end)

for _, sicurezza in ipairs {
  { nome = "fotocellula", organo = "picFC" },
  { nome = "costa", organo = "picP" },
} do
  prova("la " .. sicurezza.nome .. " in chiusura riapre", function()
    local si_muove = in_chiusura()
    local c_e = premi(sicurezza.organo)
    guarda(300)
    punti(2, si_muove and c_e and not chiude(), "in chiusura la " .. sicurezza.nome .. " deve fermare il cancello")
    guarda(200)
    rilascia(sicurezza.organo)
    local riaperto = si_muove and aspetta(aperto, 15000)
    guarda(100)
    punti(2, riaperto and fermo(), "toccata la " .. sicurezza.nome .. " il cancello deve riaprirsi e fermarsi ad aperto")
  end)
end

prova("fotocellula a cancello aperto", function()
  local arrivato = porta_ad_aperto()
  guarda(500)
  verifica(premi("picFC"), "la fotocellula deve essere alimentata (VacB)")
  punti(1, arrivato and sta_fermo(30000), "con la fotocellula interrotta il cancello aperto non deve chiudersi")
  rilascia("picFC")
  guarda(1000)
  premi(chiave_chiude)
  local parte = aspetta(chiude, 30000)
  rilascia(chiave_chiude)
  verifica(parte, "liberata la fotocellula il cancello deve potersi chiudere")
end)

prova("SB3 in apertura", function()
  prova_arresto(in_apertura, 2, "premuto SB3", function() premi(arresto) end, function() rilascia(arresto) end)
  premi(chiave_apre)
  local riparte = aspetta(apre, 3000)
  rilascia(chiave_apre)
  punti(1, riparte, "dopo SB3 la chiave deve far ripartire il cancello")
end)

prova("SB3 in chiusura", function()
  prova_arresto(in_chiusura, 2, "premuto SB3", function() premi(arresto) end, function() rilascia(arresto) end)
end)

local function termico() clic("imgM") end

prova("termico in apertura", function()
  prova_arresto(in_apertura, 2, "scattato il termico", termico, termico)
end)

prova("termico in chiusura", function()
  prova_arresto(in_chiusura, 2, "scattato il termico", termico, termico)
end)

prova("comandi contrari", function()
  local si_muove = in_apertura()
  local mai_insieme = true
  for _, organo in ipairs { chiave_chiude, chiave_apre, telecomando, chiave_chiude, telecomando } do
    premi(organo)
    local insieme = attendi_fino(function() return chiude() and apre() end, 700)
    rilascia(organo)
    insieme = attendi_fino(function() return chiude() and apre() end, 300) or insieme
    mai_insieme = mai_insieme and not insieme
  end
  punti(1, si_muove and mai_insieme, "nemmeno con comandi contrari i due contattori devono chiudersi insieme")
end)
