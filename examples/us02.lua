-- US-02, avviatore stella-triangolo. Da avviare con --impianto 2.
-- Stop è su I0.0, Start su I0.1. KM1 linea Q0.0, KM2 stella Q0.1, KM3 triangolo Q0.2.
-- Lampade: blu (Q0.3) = fermo, verdi (Q0.4 stella, Q0.5 triangolo), gialla (Q0.6) = termico.
-- Il passaggio a triangolo deve avvenire tra 4 e 6 secondi dallo Start.

local linea, stella, triangolo = "Q0.0", "Q0.1", "Q0.2"

local function acceso(punto) return leggi(punto) == 1 end
local function fermo() return not acceso(linea) and not acceso(stella) and not acceso(triangolo) end
local function corto()
  return elemento("KM(1)").Picture == "imgKMON" and elemento("KM(2)").Picture == "imgKMON"
end
local function gira_a(segno) return elemento("imgM").Picture == "imgMON" and elemento(segno).Visible end

local function avvia()
  run()
  attendi(200)
  premi("imgStart")
  attendi(300)
  rilascia("imgStart")
  attendi(100)
end

local function porta_a_triangolo()
  avvia()
  local arrivato = attendi_fino(function() return gira_a("imgT") end, 10000)
  verifica(arrivato, "il motore deve arrivare a triangolo")
  attendi(1000)
end

prova("a riposo", function()
  run()
  attendi(1000)
  punti(1, fermo(), "senza premere Start i contattori devono restare aperti")
  punti(1, acceso("Q0.3"), "con il motore fermo la lampada blu deve essere accesa")
end)

prova("avviamento completo", function()
  run()
  attendi(200)
  premi("imgStart")
  attendi(300)
  rilascia("imgStart")
  attendi(700)
  punti(3, gira_a("imgS"), "dopo lo Start il motore deve girare a stella")
  punti(1, acceso("Q0.4"), "a stella deve essere accesa la lampada verde di Q0.4")
  punti(1, not acceso("Q0.3"), "con il motore in marcia la lampada blu deve essere spenta")
  local mai_corto = true
  attendi_fino(function()
    if corto() then mai_corto = false end
    return gira_a("imgT")
  end, 10000)
  attendi(100)
  punti(3, gira_a("imgT"), "dopo la stella il motore deve passare a triangolo")
  punti(4, mai_corto, "stella e triangolo non devono mai essere chiusi insieme")
  punti(1, acceso("Q0.5") and not acceso("Q0.4"), "a triangolo deve essere accesa la lampada verde di Q0.5 e spenta quella di Q0.4")
  attendi(20000)
  punti(2, gira_a("imgT") and acceso(linea), "a triangolo il motore deve restare in marcia")
end)

prova("tempo di stella", function()
  run()
  attendi(200)
  premi("imgStart")
  local arrivato, ms = attendi_fino(function() return acceso(triangolo) end, 12000)
  rilascia("imgStart")
  punti(3, arrivato and ms >= 4000 and ms <= 6000,
        "il triangolo deve chiudersi tra 4 e 6 secondi dallo Start, non dopo " .. ms .. " ms")
end)

for _, fase in ipairs { "stella", "triangolo" } do
  local function porta()
    if fase == "stella" then avvia() else porta_a_triangolo() end
    verifica(acceso(linea), "il motore deve essere in marcia")
  end

  prova("Stop a " .. fase, function()
    porta()
    premi("imgStop")
    attendi(100)
    punti(2, fermo(), "premendo Stop a " .. fase .. " tutti i contattori devono aprirsi")
    rilascia("imgStop")
    attendi(8000)
    punti(1, fermo(), "rilasciato Stop il motore non deve ripartire da solo")
  end)

  prova("termico a " .. fase, function()
    porta()
    clic("imgRt")
    attendi(200)
    punti(2, fermo(), "quando scatta il termico a " .. fase .. " tutti i contattori devono aprirsi")
    punti(1, attendi_fino(function() return acceso("Q0.6") end, 2000),
          "con il termico scattato la lampada gialla deve accendersi")
    clic("imgRt")
    attendi(8000)
    punti(1, fermo(), "riarmato il termico il motore non deve ripartire da solo")
  end)

  prova("emergenza a " .. fase, function()
    porta()
    premi("ImgEm")
    attendi(100)
    punti(2, fermo(), "con l'emergenza a " .. fase .. " tutti i contattori devono aprirsi")
    rilascia("ImgEm")
    attendi(8000)
    punti(1, fermo(), "finita l'emergenza il motore non deve ripartire da solo")
    premi("imgStart")
    attendi(300)
    rilascia("imgStart")
    attendi(500)
    punti(2, gira_a("imgS"), "dopo un'emergenza si deve ricominciare da stella")
  end)
end

prova("stella incollata", function()
  avvia()
  -- KM2 viene tenuto chiuso: il doppio clic lo richiude appena il programma lo apre.
  attendi_fino(function() return not acceso(stella) end, 10000)
  if elemento("KM(2)").Picture == "imgKMOF" then doppio_clic("KM(2)") end
  local chiuso = attendi_fino(function() return acceso(triangolo) end, 3000)
  punti(3, not chiuso, "se KM2a resta chiuso il triangolo non deve chiudersi")
end)
