-- US-03, due unità: M1 stella-triangolo, M2 diretto. Da avviare con --impianto 3.
-- KM1 Q0.0, KM2 stella Q0.1, KM3 triangolo Q0.2, KM4 Q0.3. Blu M1 Q0.4, verde M1 Q0.5, blu M2 Q0.6,
-- verde M2 Q0.7, gialla M1 Q1.0, gialla M2 Q1.1.
-- Regola chiesta: M2 va soltanto con M1 a triangolo. Può partire da solo o con SB3; lo script preme
-- SB3 quando M1 è a triangolo e accetta l'uno e l'altro. Se M1 si ferma, si ferma anche M2.

usa("comandi.lua")

local linea, stella, triangolo, m2 = "Q0.0", "Q0.1", "Q0.2", "Q0.3"

local function m1_fermo() return not acceso(linea) and not acceso(stella) and not acceso(triangolo) end
local function tutto_fermo() return m1_fermo() and not acceso(m2) end
local function gira_a(segno) return elemento("imgM").Picture == "imgMON" and elemento(segno).Visible end
local function m2_gira() return elemento("imgM2").Picture == "imgM1ON" end
local function corto()
  return elemento("KM(1)").Picture == "imgKMON" and elemento("KM(2)").Picture == "imgKMON"
end

local function avvia_m1()
  run()
  attendi(200)
  premi_per("imgStart", 300)
end

-- M1 a triangolo e M2 in marcia.
local function tutto_in_marcia()
  avvia_m1()
  verifica(attendi_fino(function() return gira_a("imgT") end, 10000), "M1 deve arrivare a triangolo")
  attendi(1000)
  if not m2_gira() then premi_per("imgSM2", 300) end
  verifica(attendi_fino(m2_gira, 10000), "con M1 a triangolo M2 deve andare in marcia")
  attendi(1000)
end

prova("a riposo", function()
  run()
  attendi(1000)
  punti(1, tutto_fermo(), "senza premere nulla i due motori devono stare fermi")
  punti(1, acceso("Q0.4") and acceso("Q0.6"), "con i motori fermi devono essere accese le due lampade blu")
end)

prova("M1 parte a stella e passa a triangolo", function()
  avvia_m1()
  attendi(500)
  punti(2, gira_a("imgS"), "dopo SB2 M1 deve girare a stella")
  punti(1, acceso("Q0.5") and not acceso("Q0.4"), "con M1 in marcia deve essere accesa la sua lampada verde e spenta la blu")
  local mai_corto = true
  attendi_fino(function()
    if corto() then mai_corto = false end
    return gira_a("imgT")
  end, 10000)
  punti(2, gira_a("imgT"), "dopo la stella M1 deve passare a triangolo")
  punti(3, mai_corto, "stella e triangolo non devono mai essere chiusi insieme")
end)

prova("tempo di stella", function()
  run()
  attendi(200)
  premi("imgStart")
  local arrivato, ms = attendi_fino(function() return acceso(triangolo) end, 12000)
  rilascia("imgStart")
  punti(2, arrivato and ms >= 4000 and ms <= 6000,
        "il triangolo deve chiudersi tra 4 e 6 secondi da SB2, non dopo " .. ms .. " ms")
end)

prova("M2 non parte senza M1", function()
  run()
  attendi(200)
  premi("imgSM2")
  attendi(500)
  punti(2, not acceso(m2), "con M1 fermo SB3 non deve avviare M2")
  rilascia("imgSM2")
  attendi(3000)
  verifica(not acceso(m2), "con M1 fermo M2 deve restare fermo")
  premi_per("imgStart", 300)
  premi("imgSM2")
  attendi(500)
  punti(2, not acceso(m2), "con M1 ancora a stella M2 non deve partire")
  rilascia("imgSM2")
end)

prova("i due motori in marcia", function()
  tutto_in_marcia()
  attendi(10000)
  punti(3, gira_a("imgT") and m2_gira(), "M1 a triangolo e M2 devono restare in marcia")
  punti(1, acceso("Q0.7") and not acceso("Q0.6"), "con M2 in marcia deve essere accesa la sua lampada verde e spenta la blu")
end)

prova("SB1 ferma tutto", function()
  tutto_in_marcia()
  premi("imgStop")
  attendi(200)
  punti(2, tutto_fermo(), "premendo SB1 i due motori devono fermarsi")
  rilascia("imgStop")
  attendi(8000)
  punti(1, tutto_fermo(), "rilasciato SB1 i motori non devono ripartire da soli")
end)

prova("emergenza", function()
  tutto_in_marcia()
  premi("ImgEm")
  attendi(200)
  punti(2, tutto_fermo(), "con l'emergenza i due motori devono fermarsi")
  rilascia("ImgEm")
  attendi(8000)
  punti(1, tutto_fermo(), "finita l'emergenza i motori non devono ripartire da soli")
end)

prova("termico di M1", function()
  tutto_in_marcia()
  clic("imgRt")
  attendi(200)
  punti(2, tutto_fermo(), "quando scatta FR1 devono fermarsi M1 e con lui M2")
  punti(1, attendi_fino(function() return acceso("Q1.0") end, 2000), "con FR1 scattato deve accendersi la lampada gialla di M1")
  verifica(not acceso("Q1.1"), "con FR1 scattato la lampada gialla di M2 deve restare spenta")
  clic("imgRt")
  attendi(8000)
  punti(1, tutto_fermo(), "riarmato FR1 i motori non devono ripartire da soli")
end)

prova("termico di M2", function()
  tutto_in_marcia()
  clic("imgRt2")
  attendi(200)
  punti(2, not acceso(m2), "quando scatta FR2 M2 deve fermarsi")
  punti(1, attendi_fino(function() return acceso("Q1.1") end, 2000), "con FR2 scattato deve accendersi la lampada gialla di M2")
  premi_per("imgSM2", 300)
  punti(1, not acceso(m2), "con FR2 scattato SB3 non deve avviare M2")
end)

prova("KM1 si apre da solo", function()
  tutto_in_marcia()
  doppio_clic("KM(0)")
  attendi(3000)
  punti(2, not acceso(m2), "se KM1 si apre (KM1a a 0) M2 deve fermarsi")
end)
