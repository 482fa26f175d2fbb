-- US-11, garage automatico a sei posti. Da avviare con --impianto 11.
-- L'auto arriva, il pulsante apre la sbarra, l'auto passa davanti alla fotocellula e la sbarra si
-- richiude (entro 30 secondi, anche dopo un tempo di attesa). Il verde va acceso a sbarra aperta, il
-- rosso, fisso o lampeggiante, a sbarra chiusa. A garage pieno l'entrata resta chiusa.

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
  local mai_insieme = true
  local arrivato, passati = attendi_fino(function()
    local uscite = leggi("QB0")
    if uscite & 3 == 3 or uscite & 192 == 192 then mai_insieme = false end
    return fino()
  end, ms)
  verifica(mai_insieme, "i due contattori di una sbarra non devono mai essere chiusi insieme")
  return arrivato, passati
end
local function guarda(ms) aspetta(function() return false end, ms) end

local function avvia()
  run()
  guarda(300)
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
  clic(sbarra.pulsante)
  return aspetta(function() return aperta(sbarra) end, 20000)
    and aspetta(function() return acceso(sbarra.raggio) end, 20000)
    and aspetta(function() return chiusa(sbarra) end, 40000)
    and aspetta(function() return liberi() ~= prima end, 20000)
end

local function riempi(quante)
  local entrate = 0
  for _ = 1, quante do
    arriva(entrata)
    if not passa(entrata) then break end
    entrate = entrate + 1
    guarda(1000)
  end
  return verifica(entrate == quante, "devono poter entrare " .. quante .. " auto, ne sono entrate " .. entrate)
end

-- L'auto pronta davanti alla sbarra; in uscita ne deve prima entrare una.
local function prepara(sbarra)
  avvia()
  local pronta = sbarra == entrata or riempi(1)
  if pronta then arriva(sbarra, 1) end
  return pronta
end

prova("a riposo", function()
  run()
  punti(1, not aspetta(function() return not (ferma(entrata) and ferma(uscita)) end, 5000),
        "senza auto le sbarre devono restare ferme")
  for _, sbarra in ipairs { entrata, uscita } do
    punti(1, aspetta(function() return acceso(sbarra.rossa) end, 2000) and not acceso(sbarra.verde),
          "a sbarra chiusa il semaforo di " .. sbarra.nome .. " deve essere rosso")
  end
end)

for _, sbarra in ipairs { entrata, uscita } do
  local nome = sbarra.nome

  prova(nome .. ": un'auto passa", function()
    prepara(sbarra)
    local prima = liberi()
    verifica(not aspetta(function() return not ferma(sbarra) end, 3000), "senza premere il pulsante la sbarra deve restare chiusa")
    clic(sbarra.pulsante)
    local si_apre = aspetta(function() return acceso(sbarra.apre) end, 2000)
    guarda(300)
    punti(1, si_apre and acceso(sbarra.movimento), "mentre la sbarra di " .. nome .. " si muove la sua lampada gialla deve essere accesa")
    local arrivata = si_apre and aspetta(function() return aperta(sbarra) end, 20000)
    punti(2, arrivata, "con l'auto davanti il pulsante deve aprire la sbarra di " .. nome)
    guarda(50)
    punti(2, arrivata and not acceso(sbarra.apre), "a sbarra aperta il motore deve fermarsi")
    local verde = aspetta(function() return acceso(sbarra.verde) end, 2000)
    punti(1, arrivata and verde and not acceso(sbarra.rossa), "a sbarra aperta il semaforo di " .. nome .. " deve essere verde")
    local presto = false
    local passata = aspetta(function()
      presto = presto or acceso(sbarra.chiude)
      return acceso(sbarra.raggio)
    end, 20000)
    aspetta(function()
      if not acceso(sbarra.raggio) then return true end
      presto = presto or acceso(sbarra.chiude)
    end, 20000)
    punti(2, passata and not presto, "la sbarra di " .. nome .. " non deve scendere finché l'auto non è passata")
    local richiusa = passata and aspetta(function() return chiusa(sbarra) end, 30000)
    punti(2, richiusa, "passata l'auto la sbarra di " .. nome .. " deve richiudersi")
    guarda(50)
    punti(1, richiusa and ferma(sbarra) and not aspetta(function() return not ferma(sbarra) end, 5000),
          "a sbarra chiusa il motore deve fermarsi")
    local conto = sbarra == entrata and prima - 1 or prima + 1
    verifica(aspetta(function() return liberi() == conto end, 20000), "i posti liberi devono essere " .. conto)
  end)

  prova(nome .. ": pulsante senza auto", function()
    avvia()
    clic(sbarra.pulsante)
    punti(1, not aspetta(function() return not ferma(sbarra) end, 5000),
          "senza un'auto davanti la sbarra di " .. nome .. " deve restare chiusa")
  end)

  prova(nome .. ": termico", function()
    prepara(sbarra)
    clic(sbarra.pulsante)
    local si_apre = verifica(aspetta(function() return acceso(sbarra.apre) end, 2000),
                             "con l'auto davanti il pulsante deve aprire la sbarra")
    guarda(300)
    clic(sbarra.motore)
    guarda(100)
    punti(2, si_apre and ferma(sbarra) and not aspetta(function() return not ferma(sbarra) end, 3000),
          "scattato il termico la sbarra di " .. nome .. " deve fermarsi e restare ferma")
    clic(sbarra.motore)
    guarda(1000)
    if ferma(sbarra) then clic(sbarra.pulsante) end
    punti(1, si_apre and aspetta(function() return aperta(sbarra) end, 30000),
          "riarmato il termico la sbarra deve potersi aprire")
  end)
end

prova("garage pieno", function()
  avvia()
  local pieno = riempi(6)
  punti(2, pieno and liberi() == 0, "devono poter entrare sei auto; posti liberi " .. liberi())
  arriva(entrata)
  clic(entrata.pulsante)
  punti(2, pieno and not aspetta(function() return not ferma(entrata) end, 5000),
        "a garage pieno la sbarra di entrata deve restare chiusa")
  if pieno then arriva(uscita, 3) end
  punti(1, pieno and passa(uscita), "a garage pieno un'auto deve poter uscire")
  guarda(2000)
  clic(entrata.pulsante)
  punti(1, pieno and aspetta(function() return aperta(entrata) end, 20000),
        "uscita un'auto la sbarra di entrata deve di nuovo aprirsi")
end)

prova("entrata e uscita insieme", function()
  avvia()
  local pronte = riempi(2)
  if pronte then arriva(uscita, 1) end
  arriva(entrata)
  clic(uscita.pulsante)
  clic(entrata.pulsante)
  punti(1, pronte and aspetta(function() return acceso(uscita.raggio) end, 30000)
           and aspetta(function() return chiusa(uscita) and chiusa(entrata) and ferma(uscita) and ferma(entrata) end, 60000)
           and aspetta(function() return liberi() == 4 end, 20000),
        "un'auto che entra e una che esce non devono disturbarsi")
end)
