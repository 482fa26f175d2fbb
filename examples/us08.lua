-- US-08, livello di un serbatoio. Da avviare con --impianto 8.
-- Vasca di carico: SL1 massimo, SL2 minimo; serbatoio: SL4 metà, SL5 massimo; tutti a 0 quando sono
-- intervenuti. SA1 automatico, SA2 YV1, SA3 YV2, SA4 pompa; SB2 start e SB3 stop dell'automatico.
-- Lampade: verde = pompa, gialla = termico, rossa = vasca vuota, blu = automatico; anche lampeggianti.
-- SB1 non ha una funzione scritta e non viene premuto. Riarmato il termico la pompa può ripartire da
-- sola oppure no. In automatico l'utenza può essere comandata da SA3 oppure no: se YV2 resta chiusa lo
-- script scarica in manuale e poi ripreme Start.

usa("comandi.lua")

local sa1, sa2, sa3, sa4 = "imgCom(0)", "imgCom(1)", "imgCom(2)", "imgCom(3)"
local start, stop_auto = "imgSB6", "imgAlt(1)"
local yv1, pompa, yv2 = "Q0.0", "Q0.1", "Q0.2"

local function intervenuto(livello) return leggi(livello) == 0 end
local function vasca_piena() return intervenuto("I0.0") end
local function vasca_vuota() return intervenuto("I0.1") end
local function mezzo() return intervenuto("I0.4") end
local function pieno() return intervenuto("I0.5") end
local function tutto_fermo() return not acceso(yv1) and not acceso(pompa) and not acceso(yv2) end

local function in_automatico()
  run()
  attendi(200)
  gira(sa1)
  premi_per(start, 300)
end

-- Lo scarico fino a che la condizione diventa vera; poi YV2 è di nuovo chiusa.
local function scarica_fino(condizione)
  gira(sa3)
  local da_solo = acceso(yv2)
  if not da_solo then gira(sa1) end
  local arrivato = attendi_fino(condizione, 120000)
  gira(sa3)
  if not da_solo then
    gira(sa1)
    premi_per(start, 300)
  end
  return arrivato
end

prova("a riposo", function()
  in_manuale()
  attendi(3000)
  punti(1, tutto_fermo(), "senza comandi le valvole devono essere chiuse e la pompa ferma")
  punti(1, not accesa("imgHL1") and not accesa("imgHL2") and not accesa("imgHL4"),
        "a riposo le lampade pompa, termico e automatico devono essere spente")
end)

prova("comandi manuali", function()
  in_manuale()
  gira(sa2)
  punti(1, acceso(yv1), "in manuale SA2 deve aprire YV1")
  gira(sa2)
  punti(1, not acceso(yv1), "tolto SA2 YV1 deve chiudersi")
  gira(sa4)
  punti(1, acceso(pompa), "in manuale SA4 deve avviare la pompa")
  punti(1, accesa("imgHL1"), "con la pompa in marcia la lampada verde deve essere accesa")
  gira(sa4)
  punti(1, not acceso(pompa) and not accesa("imgHL1"), "tolto SA4 la pompa deve fermarsi")
  gira(sa3)
  punti(1, acceso(yv2), "in manuale SA3 deve aprire YV2")
  gira(sa3)
  punti(1, not acceso(yv2), "tolto SA3 YV2 deve chiudersi")
end)

prova("vasca piena in manuale", function()
  in_manuale()
  gira(sa2)
  local piena = verifica(attendi_fino(vasca_piena, 60000), "in manuale SA2 deve riempire la vasca")
  attendi(200)
  punti(2, piena and not acceso(yv1), "con la vasca piena YV1 deve chiudersi anche con SA2 azionato")
  attendi(30000)
  punti(1, piena and elemento("shL1").Height <= 900, "la vasca non deve traboccare")
end)

prova("marcia a secco", function()
  in_manuale()
  gira(sa4)
  local vuota = verifica(attendi_fino(vasca_vuota, 60000), "in manuale SA4 deve vuotare la vasca")
  attendi(200)
  punti(3, vuota and not acceso(pompa), "con la vasca vuota la pompa deve fermarsi")
  punti(1, si_accende("imgHL3"), "con la vasca vuota la lampada rossa deve accendersi")
end)

prova("serbatoio pieno in manuale", function()
  in_manuale()
  gira(sa2)
  attendi(10000)
  gira(sa4)
  local arrivato = verifica(attendi_fino(pieno, 180000), "in manuale SA2 e SA4 devono riempire il serbatoio")
  attendi(200)
  punti(2, arrivato and not acceso(pompa), "con il serbatoio pieno la pompa deve fermarsi anche con SA4 azionato")
end)

prova("l'automatico vuole SA1 e Start", function()
  in_manuale()
  premi(start)
  local mosso = attendi_fino(function() return not tutto_fermo() end, 300)
  rilascia(start)
  attendi(2000)
  punti(1, not mosso and tutto_fermo(), "in manuale Start non deve avviare nulla")
  gira(sa1)
  attendi(2000)
  punti(1, tutto_fermo() and not accesa("imgHL4"), "con SA1 in automatico si deve aspettare Start")
  gira(sa2)
  punti(1, not acceso(yv1), "in automatico SA2 non deve comandare YV1")
  gira(sa4)
  punti(1, not acceso(pompa), "in automatico SA4 non deve comandare la pompa")
end)

prova("riempimento in automatico", function()
  in_automatico()
  attendi(1000)
  punti(1, si_accende("imgHL4"), "dopo Start la lampada blu deve accendersi")
  punti(1, acceso(yv1) and acceso(pompa), "dopo Start la vasca deve riempirsi e la pompa partire")
  local secco, massimo = 0, 0
  local arrivato = attendi_fino(function()
    if vasca_vuota() and acceso(pompa) then secco = secco + 1 end
    massimo = math.max(massimo, elemento("shL1").Height)
    return pieno()
  end, 240000)
  attendi(200)
  punti(3, arrivato and not acceso(pompa), "la pompa deve riempire il serbatoio e poi fermarsi")
  punti(1, arrivato and secco < 200, "la pompa non deve girare a secco")
  punti(1, arrivato and massimo <= 900, "la vasca non deve traboccare")
  local ferma = not attendi_fino(function() return acceso(pompa) end, 30000)
  punti(1, arrivato and ferma and elemento("shL2").Height <= 1400, "con il serbatoio pieno la pompa deve restare ferma")
end)

prova("la pompa riparte sotto la metà", function()
  in_automatico()
  local riempito = verifica(attendi_fino(pieno, 240000), "in automatico il serbatoio deve riempirsi")
  attendi(1000)
  local presto = false
  local sceso = scarica_fino(function()
    if mezzo() and acceso(pompa) then presto = true end
    return not mezzo()
  end)
  punti(3, riempito and sceso and not presto, "la pompa non deve ripartire finché il serbatoio è sopra la metà")
  punti(2, riempito and attendi_fino(function() return acceso(pompa) end, 3000), "sotto la metà la pompa deve ripartire")
  local fermata = false
  local arrivato = attendi_fino(function()
    if mezzo() and not pieno() and not acceso(pompa) then fermata = true end
    return pieno()
  end, 240000)
  punti(2, arrivato and not fermata, "ripartita, la pompa deve riempire fino al massimo senza fermarsi a metà")
end)

prova("Stop dell'automatico", function()
  in_automatico()
  attendi(3000)
  local partita = verifica(acceso(pompa), "dopo Start la pompa deve partire")
  premi(stop_auto)
  attendi(100)
  punti(2, partita and tutto_fermo(), "premendo Stop la pompa deve fermarsi e YV1 chiudersi")
  rilascia(stop_auto)
  attendi(5000)
  punti(1, partita and tutto_fermo() and not accesa("imgHL4"), "rilasciato Stop l'automatico non deve riprendere da solo")
  premi_per(start, 300)
  attendi(1000)
  punti(1, acceso(pompa), "dopo uno Stop l'automatico deve poter ripartire con Start")
end)

prova("da automatico a manuale", function()
  in_automatico()
  attendi(3000)
  local partita = verifica(acceso(pompa), "dopo Start la pompa deve partire")
  gira(sa1)
  attendi(1000)
  punti(1, partita and tutto_fermo(), "tornati in manuale con i selettori a riposo tutto deve fermarsi")
end)

for _, modo_di_marcia in ipairs { "manuale", "automatico" } do
  prova("termico in " .. modo_di_marcia, function()
    if modo_di_marcia == "automatico" then
      in_automatico()
    else
      in_manuale()
      gira(sa4)
    end
    attendi(2000)
    local partita = verifica(acceso(pompa), "in " .. modo_di_marcia .. " la pompa deve partire")
    clic("imgP1")
    attendi(200)
    punti(2, partita and not acceso(pompa), "quando scatta il termico la pompa deve fermarsi")
    punti(1, si_accende("imgHL2"), "con il termico scattato la lampada gialla deve accendersi")
    clic("imgP1")
    attendi(1000)
    punti(1, not accesa("imgHL2"), "riarmato il termico la lampada gialla deve spegnersi")
  end)
end
