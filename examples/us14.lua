-- US-14, ascensore a quattro piani. Da avviare con --impianto 14.
-- KM1 Q0.0 salita, KM2 Q0.1 discesa, KM3 Q0.2 chiude e KM4 Q0.3 apre le porte. SQ5 I0.4 = porte chiuse,
-- SQ6 I1.7 = 0 a porte aperte. All'inizio la cabina è al terzo piano con le porte chiuse.
-- A ogni chiamata o mandata la cabina va al piano, apre le porte, aspetta tre secondi e le chiude. Prima
-- si finiscono le richieste nel verso di marcia. Oltre 8 V di carico non si parte.

usa("sicurezza.lua")

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

-- Guarda a ogni scansione che cosa c'è di pericoloso.
local function sorveglia(uscite)
  if uscite & 3 == 3 then pericolo("KM1 e KM2 non devono mai essere comandati insieme") end
  if uscite & 12 == 12 then pericolo("KM3 e KM4 non devono mai essere comandati insieme") end
  if uscite & 3 ~= 0 and not chiuse() then pericolo("la cabina non deve mai muoversi con le porte aperte") end
  if uscite & 8 ~= 0 and not a_un_piano() then pericolo("le porte non devono mai aprirsi fra due piani") end
end

-- La cabina e le porte si possono scambiare in un paio di scansioni, ma non stare comandate insieme.
local scambio = 20

local function aspetta(fino, ms)
  local insieme_da
  return attendi_quando(function(adesso)
    local uscite = leggi("QB0")
    if uscite & 15 ~= 0 then sorveglia(uscite) end
    local insieme = uscite & 3 ~= 0 and uscite & 12 ~= 0
    if insieme_da and adesso - insieme_da >= scambio then
      pericolo("la cabina non deve muoversi mentre si comandano le porte")
    end
    insieme_da = insieme and (insieme_da or adesso) or nil
    return fino()
  end, ms)
end
local function guarda(ms) aspetta(function() return false end, ms) end
local function si_chiude() return acceso("Q0.2") end
local function a_riposo() return chiuse() and leggi("QB0") & 15 == 0 end

local function avvia()
  run()
  return serve(not aspetta(function() return leggi("QB0") & 15 ~= 0 end, 1000) and chiuse(),
               "senza chiamate la cabina e le porte devono restare ferme")
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

-- Parte subito nel verso giusto, e arriva.
local function va_diritta(da, a, pulsante)
  chiama(pulsante)
  aspetta(in_corsa, 20000)
  local verso = acceso(a > da and "Q0.0" or "Q0.1")
  return aspetta(function() return servito(piani[a]) end, una_corsa) and verso
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

for _, comando in ipairs { "chiamata", "mandata" } do
  local quali = comando == "chiamata" and { terra, primo, secondo, terzo } or { secondo, terra, terzo, primo }
  prova(comando == "chiamata" and "chiamate ai piani" or "mandate dalla cabina", 8, function()
    avvia()
    local prima
    local quale = comando == "chiamata" and "lampada" or "in_cabina"
    for _, piano in ipairs(quali) do
      local lampada = piano[quale]
      local buia = not acceso(lampada)
      chiama(piano[comando])
      guarda(300)
      local accesa = acceso(lampada)
      for _, altro in ipairs(piani) do
        local e_qui = comando == "chiamata" and (al_piano(altro) or altro[quale] == prima)
        if altro ~= piano and not e_qui and acceso(altro[quale]) then accesa = false end
      end
      local arrivata = serve(aspetta(function() return servito(piano) end, una_corsa),
                             comando .. " al piano " .. piano.nome .. ": la cabina deve arrivare e aprire le porte")
      punti(1, arrivata, comando .. " al piano " .. piano.nome .. ": la cabina deve arrivare e aprire le porte")
      guarda(500)
      -- La lampada del piano può restare accesa finché la cabina è lì.
      local spenta = comando == "chiamata" or not acceso(lampada)
      punti(0.75, buia and accesa and spenta, comando .. " al piano " .. piano.nome .. ": la sua lampada, e nessun'altra, deve accendersi, e spegnersi quando è servita")
      if prima then punti(1 / 3, not acceso(prima), "lasciato il piano la lampada della " .. comando .. " di prima deve essere spenta") end
      prima = lampada
      guarda(500)
    end
  end)
end

prova("porte", 6, function()
  avvia()
  local arrivata = serve(va(secondo, secondo.mandata), "la cabina deve arrivare al secondo piano e aprire le porte")
  guarda(200)
  sicuro(1, arrivata, not acceso("Q0.3"), "a porte aperte (SQ6) KM4 deve aprirsi entro 0,2 secondi")
  local chiude, sosta = aspetta(si_chiude, 20000)
  sosta = sosta + 200
  print("porte aperte per " .. sosta .. " ms")
  serve(chiude, "le porte devono chiudersi da sole")
  punti(2, sosta >= 2500 and sosta <= 4500, "le porte devono restare aperte 3 secondi (da 2,5 a 4,5)")
  local richiuse = serve(aspetta(chiuse, 6000), "le porte devono chiudersi fino in fondo (SQ5)")
  punti(1, richiuse, "le porte devono chiudersi fino in fondo (SQ5)")
  guarda(200)
  sicuro(1, richiuse, chiuse() and not si_chiude(), "a porte chiuse (SQ5) KM3 deve aprirsi entro 0,2 secondi")
  punti(1, not aspetta(function() return leggi("QB0") & 15 ~= 0 end, 8000), "servita la mandata la cabina deve restare ferma a porte chiuse")
end)

prova("da ogni piano", 3, function()
  avvia()
  -- Da ogni piano, arrivata da sotto e da sopra, la cabina va in tutti e due i versi.
  local da, diritta = 4, true
  for n, a in ipairs { 3, 4, 2, 3, 1, 2, 1, 3, 2, 4, 3, 1 } do
    diritta = va_diritta(da, a, n % 2 == 0 and piani[a].chiamata or piani[a].mandata) and diritta
    serve(servito(piani[a]), "la cabina deve arrivare al piano " .. piani[a].nome)
    da = a
  end
  punti(3, diritta, "da ogni piano la cabina deve partire subito verso il piano chiesto, da dovunque sia arrivata")
end)

prova("chiamata al piano della cabina", 3, function()
  avvia()
  punti(1, va(terzo, terzo.chiamata), "chiamata dove si trova, la cabina deve aprire le porte")
  aspetta(a_riposo, 20000)
  punti(1, va(terzo, terzo.mandata), "mandata dove si trova, la cabina deve aprire le porte")
  guarda(500)
  chiama(terzo.chiamata)
  punti(1, aspetta(a_riposo, 30000) and va(secondo, secondo.mandata),
        "chiamata di nuovo al suo piano a porte aperte, la cabina deve poi chiuderle e servire altre richieste")
end)

prova("persona fra le porte", 4, function()
  avvia()
  local si_chiudono = serve(va(secondo, secondo.mandata) and aspetta(si_chiude, 20000), "arrivata al piano la cabina deve aprire e poi chiudere le porte")
  guarda(800)
  premi(persona)
  guarda(200)
  sicuro(2, si_chiudono, not si_chiude(), "con una persona fra le porte KM3 deve aprirsi entro 0,2 secondi")
  local riaperte = aspetta(aperte, 5000)
  sicuro(1, si_chiudono, riaperte and not aspetta(si_chiude, 15000), "con una persona fra le porte le porte devono riaprirsi e restare aperte")
  rilascia(persona)
  punti(1, riaperte and aspetta(chiuse, 15000), "passata la persona le porte devono chiudersi")
end)

prova("sovraccarico", 8, function()
  avvia()
  regola(carico, 8)
  guarda(300)
  local buia = not acceso("Q1.4")
  punti(1, va(secondo, secondo.mandata) and buia, "con 8 V di carico si parte ancora, e HL9 è spenta")
  serve(aspetta(si_chiude, 10000), "le porte devono chiudersi da sole")
  guarda(1000)
  regola(carico, 9)
  guarda(300)
  sicuro(1, true, not si_chiude(), "il sovraccarico (9 V) deve fermare le porte che si chiudono")
  punti(1, buia and aspetta(function() return acceso("Q1.4") end, 1100), "con 9 V di carico deve accendersi HL9")
  punti(1, aspetta(aperte, 5000), "il sovraccarico deve riaprire le porte che si chiudono")
  chiama(terra.mandata)
  sicuro(2, true, not aspetta(in_corsa, 15000), "con 9 V di carico la cabina non deve partire")
  regola(carico, 0)
  guarda(200)
  local di_nuovo = va(terra, terra.mandata)
  punti(1, di_nuovo and not acceso("Q1.4"), "tolto il sovraccarico la cabina deve poter partire, e HL9 spegnersi")
  chiama(terzo.mandata)
  local corre = di_nuovo and aspetta(function() return in_corsa() and not a_un_piano() end, 15000)
  regola(carico, 9)
  sicuro(1, corre, not aspetta(function() return acceso("Q0.3") and not a_un_piano() end, 12000),
         "un sovraccarico durante la corsa non deve aprire le porte fra due piani")
end)

local function lampade_spente()
  for _, piano in ipairs(piani) do
    if acceso(piano.lampada) or acceso(piano.in_cabina) then return false end
  end
  return true
end

for _, verso in ipairs { { nome = "discesa", da = terzo, a = terra, ritorno = "Q0.0" }, { nome = "salita", da = terra, a = terzo, ritorno = "Q0.1" } } do
  prova("arresto fra due piani in " .. verso.nome, 7, function()
    avvia()
    serve(va(verso.da, verso.da.mandata) and aspetta(a_riposo, 20000), "la cabina deve arrivare al piano " .. verso.da.nome)
    chiama(verso.a.mandata)
    chiama(verso.a.chiamata)
    local corre = aspetta(in_corsa, 15000)
    aspetta(function() return not a_un_piano() end, 5000)
    guarda(700)
    corre = serve(corre and in_corsa(), "con la mandata la cabina deve partire")
    premi(arresto)
    guarda(200)
    sicuro(1, corre, not in_corsa(), "premuto SB5 in " .. verso.nome .. " la cabina deve fermarsi entro 0,2 secondi")
    sicuro(1, corre, not aspetta(in_corsa, 3000), "con SB5 premuto in " .. verso.nome .. " la cabina deve restare ferma")
    rilascia(arresto)
    sicuro(2, corre, not aspetta(in_corsa, 10000), "SB5 in " .. verso.nome .. " deve cancellare le richieste: rilasciato, la cabina non riparte da sola")
    punti(1, corre and lampade_spente(), "SB5 in " .. verso.nome .. " deve spegnere le lampade delle richieste cancellate")
    regola(carico, 9)
    sicuro(1, corre, not aspetta(function() return acceso("Q0.3") end, 2000), "ferma fra due piani in " .. verso.nome .. ", la cabina non deve aprire le porte nemmeno con il sovraccarico")
    regola(carico, 0)
    guarda(200)
    chiama(verso.da.mandata)
    local torna = aspetta(in_corsa, 15000) and acceso(verso.ritorno)
    chiama(verso.a.mandata)
    punti(1, torna and aspetta(function() return servito(verso.da) end, una_corsa), "dopo SB5 in " .. verso.nome .. " una nuova richiesta deve essere servita, partendo dalla sua parte")
  end)
end

-- In manutenzione un colpo al pulsante manuale ferma la cabina, o le porte, con il contattore chiuso.
local function blocca(pulsante)
  clic("imgCom")
  premi(pulsante)
  attendi(20)
  rilascia(pulsante)
  clic("imgCom")
end

for _, guasto in ipairs {
  { nome = "salita", pulsante = "cmdSu", limite = 25000, in_corso = in_corsa, porta = function()
      va(terra, terra.mandata)
      aspetta(a_riposo, 20000)
      chiama(terzo.mandata)
      local corre = aspetta(in_corsa, 15000)
      guarda(1000)
      return corre and in_corsa()
    end },
  { nome = "discesa", pulsante = "cmdGiu", limite = 25000, in_corso = in_corsa, porta = function()
      chiama(terra.mandata)
      local corre = aspetta(in_corsa, 15000)
      guarda(1000)
      return corre and in_corsa()
    end },
  { nome = "apertura", pulsante = "cmdClose", limite = 6000, in_corso = function() return acceso("Q0.3") end, porta = function()
      chiama(terzo.mandata)
      local apre = aspetta(function() return acceso("Q0.3") end, 15000)
      guarda(1000)
      return apre and acceso("Q0.3")
    end },
  { nome = "chiusura", pulsante = "cmdOpen", limite = 6000, in_corso = function() return si_chiude() end, porta = function()
      va(terzo, terzo.mandata)
      local chiude = aspetta(si_chiude, 15000)
      guarda(1000)
      return chiude and si_chiude()
    end },
} do
  local quanto = guasto.limite // 1000
  prova("tempo massimo: " .. guasto.nome, 6, function()
    avvia()
    local va_bene = serve(guasto.porta(), "la cabina deve arrivare alla fase di " .. guasto.nome)
    blocca(guasto.pulsante)
    guarda(guasto.limite - 2500)
    serve(guasto.in_corso() and not acceso("Q1.5"), "la " .. guasto.nome .. " può durare fino a " .. quanto .. " secondi")
    guarda(2500)
    sicuro(2, va_bene, leggi("QB0") & 15 == 0, "dopo " .. quanto .. " secondi di " .. guasto.nome .. " (uno e mezzo in meno, uno in più) tutto deve fermarsi")
    punti(1, aspetta(function() return acceso("Q1.5") end, 1100), "superato il tempo massimo di " .. guasto.nome .. " deve accendersi HL10")
    local function riparte() return leggi("QB0") & 15 ~= 0 end
    local fermo = not aspetta(riparte, 4000)
    chiama(primo.mandata)
    chiama(terzo.mandata)
    sicuro(1, va_bene, fermo and not aspetta(riparte, 4000), "dopo il tempo massimo di " .. guasto.nome .. " niente deve ripartire da solo, e nemmeno con una nuova richiesta")
    premi(arresto)
    guarda(300)
    rilascia(arresto)
    guarda(300)
    local spenta = punti(1, not acceso("Q1.5"), "SB5 deve spegnere HL10")
    punti(1, spenta and va(secondo, secondo.mandata), "dopo il tempo massimo di " .. guasto.nome .. " e SB5 una nuova richiesta deve essere servita")
  end)
end

prova("più richieste insieme", 8, function()
  avvia()
  chiama(terra.mandata)
  chiama(primo.mandata)
  local viste = fermate(2 * una_corsa)
  punti(2, viste == "primo, terra", "in discesa la cabina deve fermarsi prima al primo e poi a terra")
  serve(aspetta(a_riposo, 30000), "servite le richieste le porte devono chiudersi")
  chiama(terzo.mandata)
  local passa = aspetta(function() return al_piano(primo) end, 15000)
  aspetta(function() return not al_piano(primo) end, 5000)
  chiama(terra.chiamata)
  viste = fermate(2 * una_corsa)
  punti(2, passa and viste == "terzo, terra", "la cabina deve finire la salita prima di tornare a terra")
  serve(aspetta(a_riposo, 30000), "servite le richieste le porte devono chiudersi")
  chiama(secondo.mandata)
  serve(aspetta(function() return servito(secondo) end, una_corsa) and aspetta(a_riposo, 30000), "la cabina deve arrivare al secondo piano")
  chiama(terra.mandata)
  aspetta(function() return in_corsa() and not a_un_piano() end, 15000)
  chiama(terzo.chiamata)
  viste = fermate(2 * una_corsa)
  punti(2, viste == "terra, terzo", "la cabina deve finire la discesa prima di risalire al terzo")
  serve(aspetta(a_riposo, 30000), "servite le richieste le porte devono chiudersi")
  chiama(terra.mandata)
  aspetta(function() return in_corsa() and al_piano(secondo) end, 15000)
  chiama(primo.chiamata)
  local di_strada = aspetta(function() return servito(primo) or servito(terra) end, una_corsa) and servito(primo)
  punti(1, di_strada, "una chiamata di strada, arrivata durante la corsa, deve essere servita al passaggio")
  chiama(terzo.chiamata)
  viste = fermate(2 * una_corsa)
  punti(1, di_strada and viste == "terra, terzo", "anche dopo una fermata la cabina deve finire la discesa prima di risalire")
end)

prova("più richieste in salita", 7, function()
  avvia()
  serve(va(terra, terra.mandata) and aspetta(a_riposo, 20000), "la cabina deve arrivare a terra")
  chiama(terzo.mandata)
  chiama(secondo.chiamata)
  local viste = fermate(2 * una_corsa)
  punti(2, viste == "secondo, terzo", "in salita la cabina deve fermarsi prima al secondo e poi al terzo")
  serve(aspetta(a_riposo, 30000) and va(terra, terra.mandata) and aspetta(a_riposo, 20000), "la cabina deve tornare a terra")
  chiama(terzo.mandata)
  chiama(primo.mandata)
  serve(aspetta(function() return servito(primo) end, una_corsa), "in salita la cabina deve fermarsi al primo")
  chiama(terra.chiamata)
  viste = fermate(2 * una_corsa)
  punti(2, viste == "terzo, terra", "dopo una fermata la cabina deve finire la salita prima di tornare a terra")
  serve(aspetta(a_riposo, 30000) and va(primo, primo.mandata) and aspetta(a_riposo, 20000), "la cabina deve arrivare al primo")
  chiama(secondo.mandata)
  aspetta(function() return in_corsa() and not a_un_piano() end, 15000)
  chiama(primo.chiamata)
  viste = fermate(2 * una_corsa)
  punti(2, viste == "secondo, primo", "una chiamata dal piano appena lasciato si serve dopo la salita")
  serve(aspetta(a_riposo, 30000) and va(secondo, secondo.mandata) and aspetta(a_riposo, 20000), "la cabina deve arrivare al secondo")
  premi(terra.chiamata)
  premi(terzo.chiamata)
  guarda(200)
  rilascia(terzo.chiamata)
  rilascia(terra.chiamata)
  viste = fermate(2 * una_corsa)
  punti(1, viste == "terra, terzo" or viste == "terzo, terra", "due chiamate nello stesso istante, una sopra e una sotto, devono essere servite tutt'e due")
end)

prova("STOP e RUN a porte aperte", 2, function()
  avvia()
  serve(va(secondo, secondo.mandata), "la cabina deve arrivare al secondo piano e aprire le porte")
  stop()
  attendi(1000)
  run()
  guarda(500)
  chiama(terra.mandata)
  local in_pericolo = false
  local arrivata = aspetta(function()
    if in_corsa() and not chiuse() then in_pericolo = true end
    return servito(terra)
  end, una_corsa)
  sicuro(1, true, not in_pericolo, "dopo STOP e RUN a porte aperte la cabina non deve partire prima che siano chiuse")
  punti(1, arrivata, "dopo STOP e RUN a porte aperte una nuova richiesta deve chiuderle ed essere servita")
end)

prova("STOP e RUN a metà corsa", 3, function()
  avvia()
  chiama(terra.mandata)
  for _, piano in ipairs(piani) do chiama(piano.chiamata) end
  serve(aspetta(function() return in_corsa() and not a_un_piano() end, 15000), "con la mandata la cabina deve partire")
  stop()
  attendi(2000)
  run()
  sicuro(1, true, not aspetta(in_corsa, 5000), "dopo STOP e RUN la cabina deve aspettare una nuova richiesta")
  punti(1, lampade_spente(), "dopo STOP e RUN le lampade delle richieste devono essere spente")
  punti(1, va(terra, terra.mandata), "dopo STOP e RUN una nuova richiesta deve essere servita")
end)

prova_di_sicurezza(82, function()
  avvia()
  return va(terra, terra.chiamata) and aspetta(a_riposo, 20000) and (va(secondo, secondo.mandata))
end, "la cabina deve servire una chiamata e una mandata")
