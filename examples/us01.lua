-- US-01, inversione di marcia. Da avviare con --impianto 1.
-- KM1 (Q0.0) è la marcia indietro, KM2 (Q0.1) la marcia avanti: SB2 avanti, SB3 indietro.
-- Lampade: blu (Q0.2) = motore fermo, verdi (Q0.3 e Q0.4) = in marcia, gialla (Q0.5) = termico.
-- Fra un senso e l'altro il programma può fermarsi e volere di nuovo il pulsante, oppure invertire
-- dopo una pausa di 2 secondi (tra 1,5 e 3): lo script accetta l'uno e l'altro.

usa("comandi.lua")

local avanti, indietro = "Q0.1", "Q0.0"

local function fermo() return not acceso(avanti) and not acceso(indietro) end
local function insieme()
  return elemento("imgKm1").Picture == "imgKMON" and elemento("imgKM2").Picture == "imgKMON"
end

-- Lascia passare il tempo e controlla a ogni scansione che i contattori non siano chiusi insieme.
local function sorveglia(ms)
  return not attendi_fino(insieme, ms)
end

prova("a riposo", function()
  run()
  attendi(1000)
  punti(1, fermo(), "senza premere nulla il motore deve restare fermo")
  punti(1, acceso("Q0.2"), "con il motore fermo la lampada blu deve essere accesa")
  punti(1, not acceso("Q0.3") and not acceso("Q0.4"),
        "con il motore fermo le lampade verdi devono essere spente")
end)

for _, senso in ipairs {
  { nome = "avanti", pulsante = "imgStart", uscita = avanti, altra = indietro },
  { nome = "indietro", pulsante = "imgInd", uscita = indietro, altra = avanti },
} do
  local nome, pulsante, uscita, altra = senso.nome, senso.pulsante, senso.uscita, senso.altra

  local function avvia()
    run()
    attendi(200)
    premi_per(pulsante, 300)
    attendi(3000)
    return verifica(acceso(uscita), "il pulsante " .. nome .. " deve avviare il motore")
  end

  prova("marcia " .. nome .. ": parte e resta in marcia", function()
    avvia()
    punti(3, acceso(uscita), "rilasciato il pulsante " .. nome .. " il motore deve restare in marcia")
    punti(1, not acceso(altra), "con la marcia " .. nome .. " l'altro contattore deve essere aperto")
    punti(1, acceso("Q0.3") ~= acceso("Q0.4"), "con la marcia " .. nome .. " deve essere accesa una sola lampada verde")
    punti(1, not acceso("Q0.2"), "con il motore in marcia la lampada blu deve essere spenta")
  end)

  prova("marcia " .. nome .. ": Stop", function()
    avvia()
    premi("imgStop")
    attendi(100)
    punti(2, fermo(), "premendo Stop il motore deve fermarsi")
    rilascia("imgStop")
    attendi(5000)
    punti(1, fermo(), "rilasciato Stop il motore non deve ripartire da solo")
  end)

  prova("marcia " .. nome .. ": termico", function()
    avvia()
    clic("ImgTer")
    attendi(200)
    punti(2, fermo(), "quando scatta il termico il motore deve fermarsi")
    punti(1, attendi_fino(function() return acceso("Q0.5") end, 2000),
          "con il termico scattato la lampada gialla deve accendersi")
    premi_per(pulsante, 300)
    attendi(5000)
    punti(1, fermo(), "con il termico scattato il motore non deve partire")
    clic("ImgTer")
    attendi(5000)
    punti(1, fermo(), "riarmato il termico il motore non deve ripartire da solo")
  end)

  prova("marcia " .. nome .. ": emergenza", function()
    avvia()
    premi("ImgEm")
    attendi(100)
    punti(2, fermo(), "con l'emergenza il motore deve fermarsi")
    rilascia("ImgEm")
    attendi(5000)
    punti(1, fermo(), "finita l'emergenza il motore non deve ripartire da solo")
  end)

  prova("dalla marcia " .. nome .. " all'altra", function()
    avvia()
    local altro = nome == "avanti" and "imgInd" or "imgStart"
    local mai, aperto, pausa = true, nil, nil
    local function guarda(ms)
      for _ = 1, ms do
        attendi(1)
        if insieme() then mai = false end
        if aperto then aperto = aperto + 1 end
        if not aperto and not acceso(uscita) then aperto = 0 end
        if aperto and not pausa and acceso(altra) then pausa = aperto end
      end
    end
    premi(altro)
    guarda(300)
    rilascia(altro)
    guarda(8000)
    punti(4, mai, "i due contattori non devono mai essere chiusi insieme")
    punti(2, not pausa or (pausa >= 1500 and pausa <= 3000),
          "prima di invertire il motore deve restare fermo circa 2 secondi, non " .. tostring(pausa) .. " ms")
    premi_per("imgStop", 300)
    attendi(3000)
    premi_per(altro, 300)
    attendi(3000)
    punti(2, acceso(altra), "dopo uno Stop il motore deve poter partire nell'altro senso")
  end)
end

prova("i due pulsanti insieme", function()
  run()
  attendi(200)
  premi("imgStart")
  premi("imgInd")
  local mai = sorveglia(3000)
  rilascia("imgStart")
  rilascia("imgInd")
  punti(3, sorveglia(8000) and mai,
        "con i due pulsanti premuti insieme non devono chiudersi i due contattori")
end)

prova("contattore incollato", function()
  run()
  attendi(200)
  doppio_clic("imgKm1")
  attendi(100)
  premi("imgStart")
  local mai = not attendi_fino(function() return acceso(avanti) end, 300)
  rilascia("imgStart")
  mai = not attendi_fino(function() return acceso(avanti) end, 5000) and mai
  punti(3, mai, "con KM1 incollato (KM1a chiuso) KM2 non deve essere comandato")
end)
