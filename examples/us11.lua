-- US-11, garage automatico a sei posti. Da avviare con --impianto 11.
-- L'auto arriva, il pulsante apre la sbarra, l'auto passa davanti alla fotocellula e la sbarra si
-- richiude. Il rosso e le lampade gialle possono lampeggiare quando c'è qualcosa da dire.

usa("sicurezza.lua")

local entrata = {
  nome = "entrata", pulsante = "imgPSB(0)", motore = "imgMI", apre = "Q0.0", chiude = "Q0.1",
  presenza = "I0.1", chiusa = "I0.2", aperta = "I0.3", raggio = "I0.4",
  verde = "Q0.2", rossa = "Q0.3", movimento = "Q1.0",
}
local uscita = {
  nome = "uscita", pulsante = "imgPSB(1)", motore = "imgMU", apre = "Q0.7", chiude = "Q0.6",
  presenza = "I1.1", chiusa = "I1.2", aperta = "I1.3", raggio = "I1.4",
  verde = "Q0.4", rossa = "Q0.5", movimento = "Q1.1",
}

local function acceso(punto) return leggi(punto) == 1 end
local function aperta(sbarra) return leggi(sbarra.aperta) == 0 end
local function chiusa(sbarra) return leggi(sbarra.chiusa) == 0 end
local function ferma(sbarra) return not acceso(sbarra.apre) and not acceso(sbarra.chiude) end
local function liberi() return tonumber(elemento("etPosti").Caption) end

-- Aspetta, e controlla a ogni scansione che una sbarra non abbia chiusi i due contattori.
local function aspetta(fino, ms)
  return attendi_quando(function()
    local uscite = leggi("QB0")
    if uscite & 3 == 3 or uscite & 192 == 192 then
      pericolo("i due contattori di una sbarra non devono mai essere chiusi insieme")
    end
    return fino()
  end, ms)
end
local function guarda(ms) aspetta(function() return false end, ms) end
local function resta_ferma(sbarra, ms) return not aspetta(function() return not ferma(sbarra) end, ms) end

-- Un clic tiene premuto il pulsante un decimo di secondo.
local function premi_e_guarda(pulsante)
  clic(pulsante)
  guarda(200)
end

-- I due pulsanti insieme.
local function azzera()
  premi(entrata.pulsante)
  premi(uscita.pulsante)
  guarda(500)
  rilascia(entrata.pulsante)
  rilascia(uscita.pulsante)
end

local function si_e_mossa(sbarra) return (aspetta(function() return not ferma(sbarra) end, 1000)) end

local function avvia()
  run()
  guarda(500)
  return serve(leggi("QB0") & 195 == 0 and not acceso(entrata.verde) and not acceso(uscita.verde),
               "a riposo le sbarre devono restare chiuse e ferme, con il verde spento")
end

-- Un'auto davanti alla sbarra: in uscita è quella del posto dato.
local function arriva(sbarra, posto)
  if sbarra == entrata then clic("cmdIng") else clic("imgM(" .. posto .. ")") end
  aspetta(function() return acceso(sbarra.presenza) end, 20000)
  guarda(300)
end

-- Da quando si apre a quando si richiude. Vero se è andata bene.
local function passa(sbarra)
  local prima = liberi()
  premi_e_guarda(sbarra.pulsante)
  if not aspetta(function() return aperta(sbarra) end, 20000) then return false end
  local vista, presto = false, false
  aspetta(function()
    local passa_adesso = acceso(sbarra.raggio)
    if vista and not passa_adesso then return true end
    vista, presto = vista or passa_adesso, presto or acceso(sbarra.chiude)
  end, 40000)
  if presto then pericolo("la sbarra di " .. sbarra.nome .. " non deve scendere finché l'auto non è passata, la prima come le altre") end
  return vista and not presto
    and aspetta(function() return chiusa(sbarra) end, 40000)
    and (aspetta(function() return liberi() ~= prima end, 20000))
end

local function riempi(quante)
  local entrate = 0
  for _ = 1, quante do
    arriva(entrata)
    if not passa(entrata) then break end
    entrate = entrate + 1
    guarda(1000)
  end
  return serve(entrate == quante, "devono poter entrare le auto, una dopo l'altra")
end

-- L'auto pronta davanti alla sbarra; in uscita ne deve prima entrare una.
local function prepara(sbarra)
  avvia()
  if sbarra == uscita then riempi(1) end
  arriva(sbarra, 1)
end

local function comincia_ad_aprire(sbarra)
  premi_e_guarda(sbarra.pulsante)
  return serve(acceso(sbarra.apre), "con l'auto davanti il pulsante deve aprire la sbarra di " .. sbarra.nome)
end

for _, sbarra in ipairs { entrata, uscita } do
  local nome = sbarra.nome

  prova(nome .. ": un'auto passa", 14, function()
    prepara(sbarra)
    local prima = liberi()
    serve(resta_ferma(sbarra, 3000), "senza premere il pulsante la sbarra deve restare chiusa")
    serve(aspetta(function() return acceso(sbarra.rossa) end, 2000) and not acceso(sbarra.verde) and not acceso(sbarra.movimento),
          "a sbarra chiusa il semaforo di " .. nome .. " deve essere rosso, e la lampada gialla spenta")
    local si_apre = comincia_ad_aprire(sbarra)
    punti(1, aspetta(function() return acceso(sbarra.movimento) end, 1100), "mentre la sbarra di " .. nome .. " si apre la sua lampada gialla deve essere accesa")
    punti(1, not acceso(sbarra.verde) and aspetta(function() return acceso(sbarra.rossa) end, 1100),
          "mentre la sbarra di " .. nome .. " si apre il semaforo deve restare rosso")
    local arrivata = serve(si_apre and aspetta(function() return aperta(sbarra) end, 20000), "la sbarra di " .. nome .. " si deve aprire fino in fondo")
    punti(2, arrivata, "con l'auto davanti un impulso del pulsante deve aprire la sbarra di " .. nome .. " fino in fondo")
    guarda(200)
    sicuro(1, arrivata, ferma(sbarra), "a sbarra di " .. nome .. " aperta il motore deve fermarsi entro 0,2 secondi")
    local verde = acceso(sbarra.verde)
    local rossa = aspetta(function() return acceso(sbarra.rossa) end, 600)
    punti(1, arrivata and verde and not rossa and not acceso(sbarra.movimento),
          "a sbarra aperta e ferma il semaforo di " .. nome .. " deve essere verde e non rosso, e la lampada gialla spenta")
    local presto = false
    local function guarda_se_scende() presto = presto or acceso(sbarra.chiude) end
    local passata = aspetta(function()
      guarda_se_scende()
      return acceso(sbarra.raggio)
    end, 20000)
    aspetta(function()
      if not acceso(sbarra.raggio) then return true end
      guarda_se_scende()
    end, 20000)
    serve(passata, "l'auto deve passare davanti alla fotocellula di " .. nome)
    sicuro(2, passata, not presto, "la sbarra di " .. nome .. " non deve scendere finché l'auto non è passata")
    punti(1, aspetta(function() return acceso(sbarra.chiude) end, 3000), "quando il raggio torna libero la sbarra di " .. nome .. " deve chiudersi entro 3 secondi")
    guarda(300)
    punti(1, aspetta(function() return acceso(sbarra.movimento) end, 1100) and not acceso(sbarra.verde),
          "mentre la sbarra di " .. nome .. " si chiude la lampada gialla deve essere accesa e il verde spento")
    local richiusa = serve(aspetta(function() return chiusa(sbarra) end, 30000), "passata l'auto la sbarra di " .. nome .. " deve richiudersi")
    punti(2, richiusa, "passata l'auto la sbarra di " .. nome .. " deve richiudersi")
    guarda(200)
    sicuro(1, richiusa, ferma(sbarra) and resta_ferma(sbarra, 5000), "a sbarra di " .. nome .. " chiusa il motore deve fermarsi entro 0,2 secondi")
    local conto = sbarra == entrata and prima - 1 or prima + 1
    punti(1, aspetta(function() return liberi() == conto end, 20000), "passata l'auto i posti liberi devono cambiare di uno")
  end)

  prova(nome .. ": auto lenta", 3, function()
    prepara(sbarra)
    regola("ME_Speed", 10)
    premi_e_guarda(sbarra.pulsante)
    serve(aspetta(function() return aperta(sbarra) end, 20000), "la sbarra lenta di " .. nome .. " (11,4 secondi) si deve aprire fino in fondo")
    local presto = false
    local arrivata = aspetta(function()
      presto = presto or acceso(sbarra.chiude)
      return acceso(sbarra.raggio)
    end, 60000)
    aspetta(function()
      if not acceso(sbarra.raggio) then return true end
      presto = presto or acceso(sbarra.chiude)
    end, 60000)
    serve(arrivata, "l'auto lenta deve passare davanti alla fotocellula di " .. nome)
    sicuro(2, arrivata, not presto, "la sbarra di " .. nome .. " deve aspettare anche un'auto lenta, fino a 20 secondi")
    punti(1, aspetta(function() return chiusa(sbarra) end, 30000), "passata l'auto lenta la sbarra di " .. nome .. " deve richiudersi")
  end)

  prova(nome .. ": pulsante senza auto", 2, function()
    avvia()
    premi_e_guarda(sbarra.pulsante)
    local chiusa_senza = resta_ferma(sbarra, 5000)
    if sbarra == uscita then riempi(1) end
    arriva(sbarra, 1)
    comincia_ad_aprire(sbarra)
    punti(2, chiusa_senza, "senza un'auto davanti la sbarra di " .. nome .. " deve restare chiusa")
  end)

  for _, moto in ipairs { { nome = "apertura", uscita = sbarra.apre }, { nome = "chiusura", uscita = sbarra.chiude } } do
    prova(nome .. ": termico in " .. moto.nome, 2, function()
      prepara(sbarra)
      comincia_ad_aprire(sbarra)
      local va = serve(aspetta(function() return acceso(moto.uscita) end, 60000), "la sbarra di " .. nome .. " deve arrivare alla fase di " .. moto.nome)
      guarda(200)
      clic(sbarra.motore)
      guarda(200)
      sicuro(1, va, ferma(sbarra) and resta_ferma(sbarra, 3000), "scattato il termico in " .. moto.nome .. " la sbarra di " .. nome .. " deve fermarsi e restare ferma")
      clic(sbarra.motore)
      local si_muove = si_e_mossa(sbarra)
      if not si_muove then
        clic(sbarra.pulsante)
        si_muove = si_e_mossa(sbarra)
      end
      if not si_muove then  -- un guasto memorizzato si azzera con i due pulsanti
        azzera()
        si_muove = si_e_mossa(sbarra)
      end
      if not si_muove then
        clic(sbarra.pulsante)
        si_muove = si_e_mossa(sbarra)
      end
      punti(1, si_muove, "riarmato il termico la sbarra deve potersi muovere: da sola, con il pulsante, o dopo l'azzeramento dei guasti")
    end)
  end

  local altra = sbarra == entrata and uscita or entrata
  prova(nome .. ": termico dell'altra sbarra", 2, function()
    prepara(sbarra)
    clic(altra.motore)
    local spenta = not aspetta(function() return acceso(sbarra.movimento) end, 1200)
    comincia_ad_aprire(sbarra)
    punti(1, aspetta(function() return aperta(sbarra) end, 20000), "il termico dell'altra sbarra non deve disturbare quella di " .. nome)
    punti(1, spenta, "la lampada gialla di " .. nome .. " deve restare spenta a sbarra ferma, anche con il termico dell'altra scattato")
  end)

  -- I guasti nei fili: un raggio che il PLC non vede mai, o che vede sempre, un fine corsa che non dà il segnale.
  prova(nome .. ": auto che non passa", 2, function()
    prepara(sbarra)
    guasto("filo(" .. sbarra.raggio .. ")")
    premi_e_guarda(sbarra.pulsante)
    serve(aspetta(function() return aperta(sbarra) end, 20000), "la sbarra di " .. nome .. " si deve aprire fino in fondo")
    local chiude, ms = aspetta(function() return acceso(sbarra.chiude) end, 30000)
    punti(2, chiude and ms >= 18000 and ms <= 22000, "se il raggio non si interrompe mai, la sbarra di " .. nome .. " deve chiudersi dopo 20 secondi (da 18 a 22)")
  end)

  prova(nome .. ": raggio interrotto", 2, function()
    prepara(sbarra)
    premi_e_guarda(sbarra.pulsante)
    local arrivata = serve(aspetta(function() return aperta(sbarra) end, 20000), "la sbarra di " .. nome .. " si deve aprire fino in fondo")
    guasto("incollato(" .. sbarra.raggio .. ")")
    sicuro(1, arrivata, not aspetta(function() return acceso(sbarra.chiude) end, 30000), "con il raggio interrotto la sbarra di " .. nome .. " non deve chiudersi, nemmeno dopo 20 secondi")
    guasto("incollato(" .. sbarra.raggio .. ")", false)
    punti(1, aspetta(function() return acceso(sbarra.chiude) end, 30000), "quando il raggio torna libero la sbarra di " .. nome .. " deve chiudersi")
  end)

  prova(nome .. ": tempo massimo in chiusura", 2, function()
    prepara(sbarra)
    premi_e_guarda(sbarra.pulsante)
    local scende = serve(aspetta(function() return acceso(sbarra.chiude) end, 60000), "la sbarra di " .. nome .. " deve arrivare alla fase di chiusura")
    guasto("incollato(" .. sbarra.chiusa .. ")")
    guarda(10000)
    serve(acceso(sbarra.chiude), "una manovra può durare fino a 15 secondi")
    guarda(6500)
    sicuro(2, scende, resta_ferma(sbarra, 5000), "dopo 15 secondi di chiusura (da 10 a 16,5) il motore della sbarra di " .. nome .. " deve fermarsi")
  end)

  prova(nome .. ": tempo massimo", 4, function()
    prepara(sbarra)
    local va = comincia_ad_aprire(sbarra)
    clic("cmdReset")  -- a metà corsa la sbarra si blocca, ma il contattore è ancora chiuso
    guarda(10000)
    serve(acceso(sbarra.apre), "una manovra può durare fino a 15 secondi")
    guarda(6500)
    sicuro(2, va, ferma(sbarra), "dopo 15 secondi di manovra (da 10 a 16,5) il motore della sbarra di " .. nome .. " deve fermarsi")
    local fermo = resta_ferma(sbarra, 20000)
    premi_e_guarda(sbarra.pulsante)
    sicuro(1, va, fermo and resta_ferma(sbarra, 1000), "superato il tempo massimo il motore di " .. nome .. " non deve ripartire da solo, né con il suo solo pulsante")
    azzera()
    local si_muove = si_e_mossa(sbarra)
    if not si_muove then
      if sbarra == entrata then clic("cmdIng") guarda(300) end
      premi_e_guarda(sbarra.pulsante)
      si_muove = not ferma(sbarra) or sbarra == uscita
    end
    punti(1, si_muove, "azzerati i guasti con SB1 e SB2 insieme la sbarra deve potersi muovere ancora")
  end)
end

prova("garage pieno", 10, function()
  avvia()
  riempi(6)
  punti(1, liberi() == 0, "devono poter entrare sei auto")
  arriva(entrata)
  premi_e_guarda(entrata.pulsante)
  punti(3, resta_ferma(entrata, 5000), "a garage pieno la sbarra di entrata deve restare chiusa")
  punti(1, not aspetta(function() return acceso(entrata.movimento) or acceso(uscita.movimento) end, 1200),
        "a garage pieno e a sbarre ferme le lampade gialle devono essere spente")
  arriva(uscita, 3)
  punti(1, passa(uscita), "a garage pieno un'auto deve poter uscire")
  guarda(2000)
  premi_e_guarda(entrata.pulsante)
  punti(2, aspetta(function() return aperta(entrata) end, 20000), "uscita un'auto la sbarra di entrata deve di nuovo aprirsi")
  serve(aspetta(function() return liberi() == 0 end, 40000) and aspetta(function() return chiusa(entrata) and ferma(entrata) end, 40000),
        "l'auto deve entrare e la sbarra richiudersi")
  guarda(1000)
  arriva(entrata)
  premi_e_guarda(entrata.pulsante)
  punti(2, resta_ferma(entrata, 5000), "di nuovo pieno, la sbarra di entrata deve restare chiusa")
end)

prova("più uscite", 2, function()
  avvia()
  riempi(3)
  local uscite = 0
  for posto = 1, 3 do
    arriva(uscita, posto)
    if not passa(uscita) then break end
    uscite = uscite + 1
    guarda(1000)
  end
  punti(2, uscite == 3, "devono poter uscire le auto, una dopo l'altra")
end)

prova("azzeramento", 2, function()
  avvia()
  riempi(6)
  arriva(entrata)
  premi_e_guarda(entrata.pulsante)
  serve(resta_ferma(entrata, 2000), "a garage pieno la sbarra di entrata deve restare chiusa")
  azzera()
  guarda(500)
  if ferma(entrata) and not aperta(entrata) then premi_e_guarda(entrata.pulsante) end
  punti(2, aspetta(function() return aperta(entrata) end, 20000), "SB1 e SB2 premuti insieme devono azzerare il conteggio")
end)

for _, ordine in ipairs { { uscita, entrata }, { entrata, uscita } } do
  prova("insieme, prima " .. ordine[1].nome, 4, function()
    avvia()
    riempi(2)
    arriva(uscita, 1)
    arriva(entrata)
    premi_e_guarda(ordine[1].pulsante)
    premi_e_guarda(ordine[2].pulsante)
    punti(2, acceso(uscita.apre) and acceso(entrata.apre), "le due sbarre devono potersi aprire insieme, prima " .. ordine[1].nome)
    punti(2, aspetta(function() return acceso(uscita.raggio) end, 30000)
             and aspetta(function() return chiusa(uscita) and chiusa(entrata) and ferma(uscita) and ferma(entrata) end, 60000)
             and aspetta(function() return liberi() == 4 end, 20000),
          "un'auto che entra e una che esce non devono disturbarsi, prima " .. ordine[1].nome)
  end)
end

prova_di_sicurezza(71, function()
  avvia()
  riempi(1)
  arriva(uscita, 1)
  return (passa(uscita))
end, "un'auto deve poter entrare e uscire")
