-- US-09, cancello scorrevole. Da avviare con --impianto 9.
-- KM1 (Q0.2) chiude, KM2 (Q0.3) apre, lampeggiatore Q0.1. SQ1 aperto I0.0, SQ2 chiuso I0.2.
-- Prima di muoversi il cancello può lampeggiare fino a 2 secondi; i comandi a mezza corsa possono
-- fermare o invertire, con la pausa.

usa("sicurezza.lua")

local sb1, telecomando, arresto = "imgSB(2)", "imgSB(0)", "imgSB(1)"
local chiave_apre, chiave_chiude = "etCom(2)", "etCom(1)"

local function acceso(punto) return leggi(punto) == 1 end
local function chiude() return acceso("Q0.2") end
local function apre() return acceso("Q0.3") end
local function fermo() return not chiude() and not apre() end
local function aperto() return leggi("I0.0") == 0 end
local function chiuso() return leggi("I0.2") == 0 end

-- Aspetta, e guarda a ogni scansione i due contattori e la pausa fra l'uno e l'altro. Un
-- temporizzatore di mezzo secondo può durare uno scatto, un decimo di secondo, in meno.
local ora, ultima_chiude, ultima_apre = 0, -1000, -1000
local chiudeva, apriva = false, false
local function sorveglia(adesso)
  local c, a = chiude(), apre()
  if chiudeva then ultima_chiude = adesso end
  if apriva then ultima_apre = adesso end
  if c and a then pericolo("i due contattori non devono mai essere chiusi insieme") end
  if c and adesso - ultima_apre < 390 or a and adesso - ultima_chiude < 390 then
    pericolo("prima di invertire il motore deve restare fermo mezzo secondo")
  end
  chiudeva, apriva = c, a
end
local function aspetta(fino, ms)
  local inizio = ora
  local vero, passati = attendi_quando(function(adesso)
    sorveglia(inizio + adesso)
    return fino()
  end, ms)
  ora = inizio + passati
  return vero, passati
end
local function guarda(ms) aspetta(function() return false end, ms) end
local function sta_fermo(ms) return not aspetta(function() return not fermo() end, ms) end

local function premi_per(organo, ms)
  premi(organo)
  guarda(ms)
  rilascia(organo)
end

local function avvia()
  ultima_chiude, ultima_apre, chiudeva, apriva = ora - 1000, ora - 1000, false, false
  run()
  return serve(sta_fermo(500), "senza comandi il cancello chiuso deve restare fermo")
end

-- Dopo un comando breve: si muove entro tre secondi.
local function comanda(organo, moto)
  premi_per(organo, 300)
  return aspetta(moto, 3000)
end

local function porta_ad_aperto()
  avvia()
  comanda(telecomando, apre)
  return serve(aspetta(aperto, 8000), "il telecomando deve portare il cancello ad aprirsi fino a SQ1")
end

local function in_apertura()
  avvia()
  local parte = serve(comanda(telecomando, apre), "il telecomando deve aprire il cancello")
  guarda(1500)
  return parte and apre()
end

local function in_chiusura()
  porta_ad_aperto()
  guarda(1000)
  local parte = serve(comanda(chiave_chiude, chiude), "la chiave in posizione 1 deve chiudere il cancello")
  guarda(1500)
  return parte and chiude()
end

prova("apertura con il telecomando", 5, function()
  avvia()
  premi(telecomando)
  punti(1, aspetta(apre, 3000), "premuto il telecomando (SB2) il cancello deve aprirsi")
  guarda(300)
  rilascia(telecomando)
  local arrivato = serve(aspetta(aperto, 8000), "basta un impulso: il cancello deve arrivare ad aperto (SQ1)")
  punti(1, arrivato, "basta un impulso: il cancello deve arrivare ad aperto (SQ1)")
  guarda(100)
  sicuro(2, arrivato, fermo(), "a cancello aperto (SQ1) il motore deve fermarsi entro un decimo di secondo")
  local dove = elemento("imgC").Left
  guarda(2000)
  punti(1, elemento("imgC").Left == dove, "il cancello aperto deve restare dov'è")
end)

for _, comando in ipairs {
  { nome = "SB1", organo = sb1 },
  { nome = "la chiave in posizione 2", organo = chiave_apre },
} do
  prova("apertura con " .. comando.nome, 1, function()
    avvia()
    local parte = comanda(comando.organo, apre)
    punti(1, parte and aspetta(aperto, 8000), "basta un impulso: " .. comando.nome .. " deve aprire il cancello fino in fondo")
  end)
end

prova("chiusura automatica", 4, function()
  porta_ad_aperto()
  local parte, sosta = aspetta(chiude, 15000)
  if parte then print("si richiude dopo " .. sosta .. " ms") end
  serve(parte, "il cancello aperto deve chiudersi da solo")
  punti(2, sosta >= 4000 and sosta <= 8000,
        "il cancello aperto deve chiudersi da solo dopo 5 secondi (da 4 a 8, con il lampeggio prima del movimento)")
  local arrivato = serve(aspetta(chiuso, 8000), "il cancello deve arrivare a chiuso (SQ2)")
  guarda(100)
  sicuro(1, arrivato, fermo(), "a cancello chiuso (SQ2) il motore deve fermarsi entro un decimo di secondo")
  punti(1, sta_fermo(8000), "il cancello chiuso deve restare fermo")
end)

prova("chiusura con la chiave", 2, function()
  porta_ad_aperto()
  guarda(1000)
  local parte = serve(comanda(chiave_chiude, chiude), "la chiave in posizione 1 deve chiudere il cancello")
  local arrivato = serve(parte and aspetta(chiuso, 8000), "un impulso della chiave deve chiudere il cancello fino in fondo")
  punti(1, arrivato, "un impulso della chiave in posizione 1 deve chiudere il cancello fino in fondo")
  guarda(100)
  sicuro(1, arrivato, fermo(), "chiuso con la chiave (SQ2) il motore deve fermarsi entro un decimo di secondo")
end)

for _, sicurezza in ipairs {
  { nome = "la fotocellula", organo = "picFC" },
  { nome = "la costa", organo = "picP" },
} do
  prova("sicurezze in chiusura: " .. sicurezza.nome, 3, function()
    local si_muove = serve(in_chiusura(), "la chiave in posizione 1 deve chiudere il cancello")
    premi(sicurezza.organo)
    guarda(300)
    sicuro(1, si_muove, not chiude(), "in chiusura " .. sicurezza.nome .. " deve fermare il cancello entro 0,3 secondi")
    guarda(200)
    rilascia(sicurezza.organo)
    local riaperto = aspetta(aperto, 8000)
    guarda(100)
    punti(1, si_muove and riaperto and fermo(), "toccata " .. sicurezza.nome .. " il cancello deve riaprirsi fino a SQ1 e fermarsi")
    punti(1, sta_fermo(3000) and aspetta(chiude, 5000), "riaperto per " .. sicurezza.nome .. " il cancello deve poi richiudersi da solo")
  end)

  prova("a cancello aperto: " .. sicurezza.nome, 3, function()
    local arrivato = porta_ad_aperto()
    premi(sicurezza.organo)
    guarda(100)
    sicuro(0.5, arrivato, sta_fermo(12000), "a cancello aperto " .. sicurezza.nome .. " deve impedire la chiusura automatica")
    premi_per(chiave_chiude, 500)
    sicuro(1, arrivato, sta_fermo(2000), "a cancello aperto " .. sicurezza.nome .. " deve impedire anche la chiusura con la chiave")
    punti(0.5, acceso("Q0.0"), "la fotocellula (VacB) deve restare sempre alimentata")
    rilascia(sicurezza.organo)
    punti(1, sta_fermo(3500) and aspetta(chiude, 4500),
          "liberata " .. sicurezza.nome .. " il cancello deve aspettare altri 5 secondi (da 4 a 8) e poi chiudersi da solo")
  end)
end

-- Con il cancello a mezza corsa: succede un arresto, poi finisce.
local function prova_arresto(porta, nome, comincia, finisce)
  local si_muove = serve(porta(), "il cancello deve essere in movimento")
  comincia()
  guarda(200)
  sicuro(0.5, si_muove, fermo(), nome .. " il cancello deve fermarsi entro 0,2 secondi")
  guarda(1000)
  finisce()
  sicuro(0.5, si_muove, sta_fermo(8000), nome .. " il cancello non deve ripartire da solo, nemmeno dopo")
  punti(0.5, comanda(chiave_apre, apre), nome .. " e finito l'arresto un nuovo comando deve far ripartire il cancello")
end

local function termico() clic("imgM") end
for _, moto in ipairs { { nome = "apertura", porta = in_apertura }, { nome = "chiusura", porta = in_chiusura } } do
  prova("SB3 in " .. moto.nome, 1.5, function()
    prova_arresto(moto.porta, "premuto SB3 in " .. moto.nome, function() premi(arresto) end, function() rilascia(arresto) end)
  end)
  prova("termico in " .. moto.nome, 1.5, function()
    prova_arresto(moto.porta, "scattato il termico in " .. moto.nome, termico, termico)
  end)
end

prova("comandi contrari", 3, function()
  local si_muove = serve(in_apertura(), "il telecomando deve aprire il cancello")
  premi_per(chiave_chiude, 300)
  punti(1, si_muove and not apre(), "in apertura la chiave in posizione 1 deve fermare il cancello o invertirlo")
  premi_per(chiave_apre, 300)
  serve(aspetta(aperto, 12000), "dopo comandi contrari l'ultimo comando, di apertura, deve aprire il cancello")
  guarda(500)
  serve(comanda(chiave_chiude, chiude), "la chiave in posizione 1 deve chiudere il cancello")
  guarda(1000)
  premi_per(telecomando, 300)
  punti(1, not chiude(), "in chiusura il telecomando deve fermare il cancello o invertirlo")
  for _, organo in ipairs { chiave_chiude, chiave_apre, telecomando, chiave_chiude, telecomando } do
    premi_per(organo, 300)
    guarda(700)
  end
  punti(1, si_muove and (aspetta(aperto, 12000)), "dopo comandi contrari l'ultimo comando, di apertura, deve aprire il cancello")
end)

-- Fra i 2 e i 30 cambi in poco più di due secondi.
local function lampeggia()
  local cambi, prima = 0, acceso("Q0.1")
  aspetta(function()
    if acceso("Q0.1") ~= prima then cambi, prima = cambi + 1, acceso("Q0.1") end
  end, 2200)
  return cambi >= 2 and cambi <= 30
end

prova("lampade", 5, function()
  avvia()
  serve(acceso("Q0.4") and not acceso("Q0.6") and not acceso("Q0.5"),
        "a cancello chiuso deve essere accesa HL1, e spente HL2 e HL3")
  serve(comanda(telecomando, apre), "il telecomando deve aprire il cancello")
  guarda(500)
  punti(1, not acceso("Q0.4") and not acceso("Q0.6"), "HL1 deve essere accesa soltanto a cancello chiuso")
  punti(1, lampeggia(), "mentre il cancello si apre il lampeggiatore (HL4) deve lampeggiare")
  serve(aspetta(aperto, 8000), "il cancello deve aprirsi fino a SQ1")
  guarda(200)
  punti(1, acceso("Q0.6") and not acceso("Q0.4"), "HL3 deve essere accesa soltanto a cancello aperto")
  local buia = not aspetta(function() return acceso("Q0.1") end, 1500)
  termico()
  guarda(200)
  local scattata = aspetta(function() return acceso("Q0.5") end, 1500)
  termico()
  guarda(200)
  punti(1, scattata and buia and not aspetta(function() return acceso("Q0.5") end, 1500),
        "HL2 deve essere accesa, o lampeggiare, soltanto con il termico scattato, e HL4 spenta a cancello fermo")
  serve(comanda(chiave_chiude, chiude), "la chiave in posizione 1 deve chiudere il cancello")
  guarda(500)
  punti(1, lampeggia(), "anche mentre il cancello si chiude HL4 deve lampeggiare")
end)

prova_di_sicurezza(29, function()
  local aperta = porta_ad_aperto()
  guarda(1000)
  return aperta and comanda(chiave_chiude, chiude) and (aspetta(chiuso, 8000))
end, "il telecomando deve aprire il cancello e la chiave chiuderlo")
