-- US-13, quattro prodotti in sequenza. Da avviare con --impianto 13.
-- SB1 start, SB2 stop, SA consenso allo scarico, SB3 azzera la manutenzione, SB4 emergenza.
-- A fino a SL1 (40 litri), B fino a SL2 (80), C fino a SL3 (120), poi D. Lampade: HL2 ciclo attivo, HL6
-- fine ciclo, HL3 scarico, HL4 e HL5 motori, HL7 e HL8 termici, HL0 e HL1 manutenzione.
-- La ricetta chiesta si cambia qui. Lo script accetta livelli sbagliati di due litri e lampade fisse o
-- lampeggianti; riarmato un termico, o tornato il prodotto, il ciclo può riprendere oppure no.
local fine_d = 150      -- litri
local mescola = 5000    -- ms
local avviamenti = 5    -- di M1 e di M2, per la manutenzione

usa("comandi.lua")

local start, stop_ciclo, azzera, sa = "imgSB(0)", "imgSB(1)", "imgSB(2)", "imgCom"
local valvole = { "Q0.0", "Q0.1", "Q0.2", "Q0.3" }
local nomi = { "A", "B", "C", "D" }
local pompa, agitatore, scarico = "Q0.5", "Q0.4", "Q0.6"

local function aperte()
  local quante = 0
  for _, valvola in ipairs(valvole) do
    if acceso(valvola) then quante = quante + 1 end
  end
  return quante
end
local function carica() return acceso(pompa) and aperte() > 0 end
local function tutto_fermo()
  return aperte() == 0 and not acceso(pompa) and not acceso(agitatore) and not acceso(scarico)
end
local function litri() return tonumber(elemento("etcap").Caption) end

-- Accesa in qualche momento dei prossimi due secondi, anche se lampeggia.
local function si_accende(punto)
  return attendi_fino(function() return acceso(punto) end, 2000)
end

-- ME_SpedP 100 è la pompa alla velocità massima, 500 alla minima.
local function avvia()
  run()
  attendi(200)
  premi_per(start, 300)
end

local function porta_a(condizione, che_cosa)
  regola("ME_SpedP", 100)
  avvia()
  return verifica(attendi_fino(condizione, 300000), "dopo Start si deve arrivare " .. che_cosa)
end

-- Vera quando il mescolatore ha girato e si è fermato.
local function dopo_mescolazione()
  local mescolato = false
  return function()
    if acceso(agitatore) then mescolato = true end
    return mescolato and not acceso(agitatore)
  end
end

prova("a riposo", function()
  run()
  attendi(3000)
  punti(1, tutto_fermo(), "senza premere Start pompa, valvole e mescolatore devono stare fermi")
  punti(1, not acceso("Q1.1") and not acceso("Q1.2"), "a riposo le lampade ciclo attivo e fine ciclo devono essere spente")
end)

prova("ricetta", function()
  regola("ME_SpedP", 100)
  avvia()
  attendi(1000)
  local caricava = carica()
  punti(1, si_accende("Q1.1"), "dopo Start la lampada ciclo attivo deve accendersi")
  punti(1, si_accende("Q1.4"), "con la pompa in marcia la lampada M1 deve accendersi")
  local fino, ultima, una_sola, agitato, lampada = {}, 0, true, 0, false
  local finito = attendi_fino(function()
    for n, valvola in ipairs(valvole) do
      if acceso(valvola) then
        fino[n] = litri()
        if n < ultima then una_sola = false end
        ultima = n
      end
    end
    if aperte() > 1 then una_sola = false end
    if acceso(agitatore) then
      agitato = agitato + 1
      if acceso("Q1.5") then lampada = true end
    end
    return acceso(scarico) or agitato > 0 and not acceso(agitatore)
  end, 400000)
  local attesi = { 40, 80, 120, fine_d }
  for n, nome in ipairs(nomi) do
    punti(2, fino[n] and math.abs(fino[n] - attesi[n]) <= 2,
          "il prodotto " .. nome .. " si deve caricare fino a " .. attesi[n] .. " litri, non " .. tostring(fino[n]))
  end
  punti(2, caricava and una_sola, "le valvole dei prodotti si devono aprire una alla volta, da A a D")
  punti(2, agitato >= mescola - 1000 and agitato <= mescola + 3000,
        "il mescolatore deve girare circa " .. mescola .. " ms, non " .. agitato)
  punti(1, lampada, "con il mescolatore in marcia la lampada M2 deve accendersi")
  attendi(100)
  punti(2, finito and si_accende("Q1.2"), "dopo la mescolazione la lampada fine ciclo deve accendersi")
  attendi(10000)
  punti(2, finito and tutto_fermo(), "lo scarico deve aspettare SA")
  clic(sa)
  attendi(500)
  punti(2, acceso(scarico), "con SA lo scarico deve aprirsi")
  punti(1, si_accende("Q1.3"), "durante lo scarico la lampada scarico deve accendersi")
  local vuoto = attendi_fino(function() return litri() == 0 end, 120000)
  attendi(3000)
  clic(sa)
  attendi(1000)
  punti(2, finito and vuoto and not acceso(scarico), "a serbatoio vuoto lo scarico deve chiudersi")
  premi_per(start, 300)
  attendi(1000)
  punti(2, finito and carica() and acceso(valvole[1]), "finita la ricetta se ne deve poter fare un'altra")
end)

prova("prodotto mancante", function()
  avvia()
  attendi(8000)
  local va = verifica(carica(), "dopo Start si deve caricare il prodotto A")
  premi("etGP(0)")
  attendi(1500)
  local subito = not acceso(pompa)
  attendi(4000)
  punti(3, va and tutto_fermo(), "se per 3 secondi non arrivano impulsi il carico deve fermarsi")
  punti(1, va and not subito, "il carico non deve fermarsi prima di 3 secondi senza impulsi")
  rilascia("etGP(0)")
end)

prova("carico lento", function()
  regola("ME_SpedP", 500)
  avvia()
  attendi(20000)
  punti(2, carica() and litri() >= 15, "con la pompa alla velocità minima il prodotto non manca")
end)

prova("emergenza durante il carico", function()
  avvia()
  attendi(5000)
  local va = verifica(carica(), "dopo Start si deve caricare")
  clic("ImgEm")
  attendi(200)
  punti(2, va and tutto_fermo(), "con l'emergenza tutto deve fermarsi")
  clic("ImgEm")
  attendi(5000)
  punti(1, va and tutto_fermo(), "finita l'emergenza il ciclo non deve riprendere da solo")
end)

prova("emergenza durante lo scarico", function()
  local va = porta_a(dopo_mescolazione(), "alla fine della mescolazione")
  clic(sa)
  attendi(3000)
  va = verifica(acceso(scarico), "con SA lo scarico deve aprirsi") and va
  clic("ImgEm")
  attendi(200)
  punti(2, va and tutto_fermo(), "con l'emergenza lo scarico deve chiudersi")
end)

prova("Stop", function()
  avvia()
  attendi(5000)
  local va = verifica(carica(), "dopo Start si deve caricare")
  premi(stop_ciclo)
  attendi(200)
  punti(1, va and tutto_fermo(), "premendo Stop il ciclo deve fermarsi")
  rilascia(stop_ciclo)
  attendi(5000)
  punti(1, va and tutto_fermo(), "rilasciato Stop il ciclo non deve riprendere da solo")
end)

prova("termico di M1", function()
  avvia()
  attendi(5000)
  local va = verifica(carica(), "dopo Start si deve caricare")
  local spenta = not acceso("Q1.6")
  clic("imgM(0)")
  attendi(200)
  punti(2, va and not acceso(pompa), "quando scatta il termico la pompa deve fermarsi")
  punti(1, spenta and si_accende("Q1.6"), "con il termico di M1 scattato la sua lampada deve accendersi")
end)

prova("termico di M2", function()
  local va = porta_a(function() return acceso(agitatore) end, "alla mescolazione")
  local spenta = not acceso("Q1.7")
  attendi(500)
  clic("imgM(1)")
  attendi(200)
  punti(1, va and not acceso(agitatore), "quando scatta il termico il mescolatore deve fermarsi")
  punti(1, spenta and si_accende("Q1.7"), "con il termico di M2 scattato la sua lampada deve accendersi")
end)

-- Fermata prima del primo litro, la pompa si riavvia a serbatoio vuoto quante volte si vuole.
local function avviamento()
  premi(start)
  attendi(150)
  local partita = acceso(pompa)
  rilascia(start)
  premi(stop_ciclo)
  attendi(150)
  rilascia(stop_ciclo)
  attendi(500)
  return partita and not acceso(pompa)
end

prova("manutenzione di M1", function()
  run()
  attendi(200)
  local partiti = true
  for _ = 1, avviamenti - 1 do partiti = avviamento() and partiti end
  verifica(partiti, "Start deve avviare la pompa e Stop fermarla")
  punti(1, partiti and not acceso("Q0.7"),
        "prima di " .. avviamenti .. " avviamenti la lampada manutenzione deve essere spenta")
  for _ = 1, 2 do partiti = avviamento() and partiti end
  punti(2, partiti and si_accende("Q0.7"), "dopo " .. avviamenti .. " avviamenti la lampada manutenzione deve accendersi")
  premi_per(azzera, 300)
  punti(1, partiti and not acceso("Q0.7"), "SB3 deve azzerare la manutenzione")
end)
