-- US-04, un cilindro con valvola bistabile. Da avviare con --impianto 4.
-- SA I0.0 aria, a0 I0.1, a1 I0.2, SB1 I0.3 ciclo automatico, SB2 I0.4 ciclo singolo,
-- SB3 I0.5 (NC) fine del ciclo automatico, SB4 I0.6 ripristino, SB5 I0.7 (NC) emergenza.
-- 0Y1 Q0.0 aria, 1Y1 Q0.1 A fuori, 1Y2 Q0.2 A dentro.
-- Ciclo chiesto: A fuori, pausa di 1 secondo (tra 0,8 e 1,5), A dentro.

usa("ciclo_pneumatico.lua")

local function dentro() return leggi("I0.1") == 1 end
local function fuori() return leggi("I0.2") == 1 end
local function lascia_a0() return not dentro() end

-- Quante volte il cilindro arriva fuori in questo tempo.
local function cicli_in(ms)
  local volte, prima = 0, fuori()
  for _ = 1, ms / 5 do
    attendi(5)
    if fuori() and not prima then volte = volte + 1 end
    prima = fuori()
  end
  return volte
end

prova("a riposo", function()
  run()
  attendi(500)
  punti(1, leggi("Q0.1") == 0, "senza comandi 1Y1 deve restare spenta")
  clic("imgCom")
  attendi(500)
  punti(2, leggi("Q0.0") == 1, "con SA chiuso l'aria (0Y1) deve esserci")
  attendi(3000)
  punti(1, dentro(), "senza premere nulla il cilindro deve restare dentro")
end)

prova("ciclo singolo", function()
  con_aria()
  premi_per("imgSB2", 200)
  punti(2, attendi_fino(lascia_a0, 3000), "premuto SB2 il cilindro deve partire")
  punti(3, attendi_fino(fuori, 10000), "il cilindro deve arrivare fuori (a1)")
  local riparte, pausa = attendi_fino(function() return not fuori() end, 5000)
  punti(3, riparte and pausa >= 800 and pausa <= 1500,
        "fuori il cilindro deve aspettare circa un secondo, non " .. pausa .. " ms")
  punti(3, attendi_fino(dentro, 10000), "il cilindro deve tornare dentro (a0)")
  punti(3, cicli_in(10000) == 0 and dentro(), "il ciclo singolo deve fermarsi dopo una volta")
end)

prova("SB2 tenuto premuto", function()
  con_aria()
  premi("imgSB2")
  punti(2, cicli_in(20000) == 1, "con SB2 tenuto premuto il ciclo singolo deve farsi una volta sola")
end)

prova("ciclo automatico e sua fine", function()
  con_aria()
  premi_per("imgSB1", 200)
  punti(3, cicli_in(20000) >= 2, "premuto SB1 il ciclo deve ripetersi")
  attendi_fino(fuori, 10000)
  premi_per("imgSB3", 200)
  attendi_fino(dentro, 10000)
  punti(2, dentro(), "premuto SB3 il ciclo in corso deve finire")
  punti(3, cicli_in(10000) == 0 and dentro(), "dopo SB3 il ciclo non deve ricominciare")
end)

prova("emergenza", function()
  con_aria()
  premi_per("imgSB2", 200)
  attendi_fino(lascia_a0, 3000)
  attendi(300)
  clic("ImgEm")
  attendi(200)
  punti(3, leggi("Q0.0") == 0, "con SB5 azionato l'aria deve andare via")
  punti(2, leggi("Q0.1") == 0, "con SB5 azionato 1Y1 deve spegnersi")
  clic("ImgEm")
  attendi(3000)
  punti(2, not fuori(), "liberato SB5 il cilindro non deve riprendere il ciclo da solo")
  premi_per("imgSB4", 300)
  punti(3, attendi_fino(dentro, 10000), "dopo l'emergenza SB4 deve riportare il cilindro a riposo")
  attendi(1000)
  premi_per("imgSB2", 200)
  punti(2, attendi_fino(fuori, 10000), "dopo il ripristino il ciclo deve poter ripartire")
end)

prova("senza aria", function()
  run()
  attendi(500)
  premi_per("imgSB2", 200)
  attendi(3000)
  punti(1, dentro(), "senza aria il cilindro non deve muoversi")
end)
