-- US-14, ascensore a quattro piani. Da avviare con --impianto 14.
-- KM1 Q0.0 salita, KM2 Q0.1 discesa, KM3 Q0.2 chiude e KM4 Q0.3 apre le porte. SQ5 I0.4 = porte chiuse,
-- SQ6 I1.7 = 0 a porte aperte. All'inizio la cabina è al terzo piano con le porte chiuse.
-- A ogni chiamata o mandata la cabina va al piano, apre le porte, aspetta (da 1 a 15 secondi) e le
-- chiude. Prima si finiscono le richieste nel verso di marcia. Oltre 8 V di carico non si parte.

local piani = {
  { nome = "terra", micro = "I0.0", chiamata = "imgPP(3)", mandata = "imgPC(0)", lampada = "Q0.4", in_cabina = "Q1.3" },
  { nome = "primo", micro = "I0.1", chiamata = "imgPP(2)", mandata = "imgPC(1)", lampada = "Q0.5", in_cabina = "Q1.2" },
  { nome = "secondo", micro = "I0.2", chiamata = "imgPP(1)", mandata = "imgPC(2)", lampada = "Q0.6", in_cabina = "Q1.1" },
  { nome = "terzo", micro = "I0.3", chiamata = "imgPP(0)", mandata = "imgPC(3)", lampada = "Q0.7", in_cabina = "Q1.0" },
}
local terra, primo, secondo, terzo = piani[1], piani[2], piani[3], piani[4]
local arresto, persona, carico = "imgPC(4)", "imgLFC", "UpD1"
local una_corsa = 40000  -- con l'apertura delle porte

local function acceso(punto) return leggi(punto) == 1 end
local function in_corsa() return leggi("QB0") & 3 ~= 0 end
local function al_piano(piano) return leggi(piano.micro) == 0 end
local function aperte() return leggi("I1.7") == 0 end
local function chiuse() return leggi("I0.4") == 1 end
local function servito(piano) return al_piano(piano) and aperte() and not in_corsa() end
local function a_un_piano()
  return al_piano(terra) or al_piano(primo) or al_piano(secondo) or al_piano(terzo)
end

-- Che cosa c'è di pericoloso in questa scansione.
local function pericolo()
  local uscite = leggi("QB0")
  if uscite & 3 == 3 then return "KM1 e KM2 non devono mai essere comandati insieme" end
  if uscite & 12 == 12 then return "KM3 e KM4 non devono mai essere comandati insieme" end
  if uscite & 3 ~= 0 and not chiuse() then return "la cabina non deve mai muoversi con le porte aperte" end
  if uscite & 8 ~= 0 and not a_un_piano() then return "le porte non devono aprirsi fra due piani" end
end

-- Aspetta, e guarda a ogni scansione che non ci siano pericoli. Alla fine dice anche se ce ne sono stati.
local function aspetta(fino, ms)
  local visto
  local arrivato, passati = attendi_fino(function()
    visto = visto or pericolo()
    return fino()
  end, ms)
  verifica(not visto, visto)
  return arrivato, passati, visto
end
local function guarda(ms) aspetta(function() return false end, ms) end
local function si_chiude() return acceso("Q0.2") end
local function a_riposo() return chiuse() and leggi("QB0") & 15 == 0 end

local function avvia()
  run()
  guarda(500)
end

local function chiama(pulsante)
  premi(pulsante)
  guarda(200)
  rilascia(pulsante)
end

local function va(piano, pulsante)
  chiama(pulsante)
  return aspetta(function() return servito(piano) end, una_corsa)
end

-- I primi due piani dove si aprono le porte.
local function fermate(ms)
  local viste, erano_aperte = {}, aperte()
  aspetta(function()
    local adesso = aperte()
    if adesso and not erano_aperte then
      for _, piano in ipairs(piani) do
        if al_piano(piano) then viste[#viste + 1] = piano.nome end
      end
    end
    erano_aperte = adesso
    return #viste == 2
  end, ms)
  return table.concat(viste, ", ")
end

prova("a riposo", function()
  run()
  punti(1, not aspetta(in_corsa, 5000), "senza chiamate la cabina deve restare ferma")
end)

prova("chiamate ai piani", function()
  avvia()
  local tutte, sicuro = true, true
  for _, piano in ipairs { terra, primo, secondo, terzo } do
    chiama(piano.chiamata)
    local arrivata, _, visto = aspetta(function() return servito(piano) end, una_corsa)
    punti(2, arrivata, "chiamata al piano " .. piano.nome .. ": la cabina deve arrivare e aprire le porte")
    tutte, sicuro = tutte and arrivata, sicuro and not visto
    guarda(1000)
  end
  punti(3, tutte and sicuro, "corse con le porte chiuse, porte aperte soltanto ai piani")
end)

prova("mandate dalla cabina", function()
  avvia()
  for _, piano in ipairs { secondo, terra, terzo, primo } do
    punti(1, va(piano, piano.mandata), "mandata al piano " .. piano.nome .. ": la cabina deve arrivare e aprire le porte")
    guarda(1000)
  end
end)

prova("porte", function()
  avvia()
  local arrivata = va(secondo, secondo.mandata)
  guarda(50)
  punti(1, arrivata and not acceso("Q0.3"), "a porte aperte (SQ6) KM4 deve aprirsi")
  local chiude, sosta = aspetta(si_chiude, 20000)
  punti(1, arrivata and chiude and sosta >= 950 and sosta <= 15000,
        "le porte devono restare aperte da 1 a 15 secondi, non " .. sosta .. " ms")
  punti(2, arrivata and aspetta(chiuse, 15000), "le porte devono chiudersi da sole")
  guarda(50)
  punti(1, arrivata and chiuse() and not si_chiude(), "a porte chiuse (SQ5) KM3 deve aprirsi")
end)

prova("chiamata al piano della cabina", function()
  avvia()
  punti(1, va(terzo, terzo.chiamata), "chiamata dove si trova, la cabina deve aprire le porte")
end)

prova("lampade", function()
  avvia()
  chiama(terra.mandata)
  chiama(primo.chiamata)
  guarda(1000)
  punti(1, aspetta(function() return acceso(terra.in_cabina) end, 2000)
           and aspetta(function() return acceso(primo.lampada) end, 2000),
        "le richieste memorizzate devono accendere le loro lampade")
  local arrivata = aspetta(function() return servito(terra) end, 2 * una_corsa)
  guarda(500)
  punti(1, arrivata and not aspetta(function() return acceso(terra.in_cabina) end, 2000),
        "servita la mandata la sua lampada deve spegnersi")
end)

prova("persona fra le porte", function()
  avvia()
  local si_chiudono = va(secondo, secondo.mandata) and aspetta(si_chiude, 20000)
  verifica(si_chiudono, "arrivata al piano la cabina deve aprire e poi chiudere le porte")
  guarda(800)
  premi(persona)
  guarda(200)
  punti(2, si_chiudono and not si_chiude(), "con una persona fra le porte KM3 deve aprirsi")
  local riaperte = si_chiudono and aspetta(aperte, 10000)
  punti(1, riaperte and not aspetta(si_chiude, 15000), "con una persona fra le porte le porte devono riaprirsi e restare aperte")
  rilascia(persona)
  punti(1, riaperte and aspetta(chiuse, 30000), "passata la persona le porte devono chiudersi")
end)

prova("sovraccarico", function()
  avvia()
  regola(carico, 10)
  guarda(200)
  local lampada = aspetta(function() return acceso("Q1.4") end, 3000)
  chiama(terra.mandata)
  local ferma = not aspetta(in_corsa, 15000)
  regola(carico, 0)
  guarda(200)
  local riparte = va(terra, terra.mandata)
  punti(1, riparte, "tolto il sovraccarico la cabina deve poter partire")
  punti(2, riparte and ferma, "con 10 V di carico la cabina non deve partire")
  punti(1, lampada, "con 10 V di carico deve accendersi HL9")
end)

prova("arresto fra due piani", function()
  avvia()
  chiama(terra.mandata)
  local corre = aspetta(in_corsa, 15000)
  aspetta(function() return not a_un_piano() end, 5000)
  guarda(700)
  corre = verifica(corre and in_corsa(), "con la mandata la cabina deve partire")
  premi(arresto)
  guarda(100)
  punti(2, corre and not in_corsa(), "premuto SB5 la cabina deve fermarsi")
  punti(1, corre and not aspetta(in_corsa, 5000), "con SB5 premuto la cabina deve restare ferma")
  rilascia(arresto)
  guarda(500)
  punti(1, corre and va(terra, terra.mandata), "dopo SB5 la cabina deve poter ripartire")
end)

prova("più richieste insieme", function()
  avvia()
  chiama(terra.mandata)
  chiama(primo.mandata)
  local viste = fermate(2 * una_corsa)
  punti(2, viste == "primo, terra", "in discesa la cabina deve fermarsi prima al primo e poi a terra, non " .. viste)
  aspetta(a_riposo, 30000)
  chiama(terzo.mandata)
  local passa = aspetta(function() return al_piano(primo) end, 15000)
  aspetta(function() return not al_piano(primo) end, 5000)
  chiama(terra.chiamata)
  viste = fermate(2 * una_corsa)
  punti(2, passa and viste == "terzo, terra", "la cabina deve finire la salita prima di tornare a terra; fermate: " .. viste)
end)
