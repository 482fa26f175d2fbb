-- US-10, miscelatore di due liquidi con controllo di temperatura. Da avviare con --impianto 10.
-- SA1 automatico, SB1 start, SB2 stop; in manuale SA2 prodotto 1, SA3 prodotto 2, SA4 scarico, SA5
-- agitatore e vapore. Il prodotto scorre solo con pompa e valvola insieme.
-- La ricetta chiesta si cambia qui. Lo script accetta un litro in più o in meno, un programma che
-- mescola mentre scalda e uno che dopo lo scarico ricomincia da solo.
local litri_1, litri_2 = 30, 20
local mescola = 10000  -- ms

usa("comandi.lua")
usa("miscelatore.lua")

local sa1, start, stop_auto = "imgCom(0)", "imgSB(0)", "imgSB(1)"
local mandata_1, mandata_2, scarico = { "Q0.0", "Q0.5" }, { "Q0.1", "Q0.6" }, { "Q0.2", "Q0.7" }
local vapore, agitatore = "Q0.3", "Q0.4"

local function scorre(linea) return acceso(linea[1]) and acceso(linea[2]) end
local function tutto_fermo()
  for bit = 0, 7 do
    if acceso("Q0." .. bit) then return false end
  end
  return true
end
local function gradi() return tonumber(elemento("etT").Caption) end

local function in_automatico(temperatura)
  regola("UpDown1", temperatura)
  run()
  attendi(200)
  gira(sa1)
  premi_per(start, 300)
end

local function osserva(ms)
  return osserva_ricetta(ms, function() return scorre(scarico) end, function() return acceso(agitatore) end, function(visto)
    visto.vapore = visto.vapore or acceso(vapore)
    visto.gradi = gradi()
    visto.gradi_massimi = math.max(visto.gradi_massimi or 0, visto.gradi)
  end)
end

prova("a riposo", function()
  in_manuale()
  attendi(3000)
  punti(2, tutto_fermo(), "senza comandi pompe, valvole e agitatore devono stare fermi")
end)

prova("comandi manuali", function()
  in_manuale()
  gira("imgCom(1)")
  attendi(5000)
  punti(2, scorre(mandata_1) and litri() >= 5, "in manuale SA2 deve caricare il prodotto 1 (pompa e valvola)")
  gira("imgCom(1)")
  punti(1, not acceso("Q0.0") and not acceso("Q0.5"), "tolto SA2 il carico del prodotto 1 deve fermarsi")
  local prima = litri()
  gira("imgCom(2)")
  attendi(5000)
  punti(2, scorre(mandata_2) and litri() >= prima + 5, "in manuale SA3 deve caricare il prodotto 2 (pompa e valvola)")
  gira("imgCom(2)")
  punti(1, not acceso("Q0.1") and not acceso("Q0.6"), "tolto SA3 il carico del prodotto 2 deve fermarsi")
  gira("imgCom(4)")
  attendi(1000)
  punti(2, acceso(agitatore) and acceso(vapore), "in manuale SA5 deve comandare agitatore e vapore")
  gira("imgCom(4)")
  punti(1, not acceso(agitatore) and not acceso(vapore), "tolto SA5 agitatore e vapore devono fermarsi")
  gira("imgCom(3)")
  punti(1, scorre(scarico), "in manuale SA4 deve scaricare (pompa e valvola)")
  attendi_fino(function() return litri() == 0 end, 30000)
  gira("imgCom(3)")
  punti(1, litri() == 0 and not acceso("Q0.2") and not acceso("Q0.7"), "tolto SA4 lo scarico deve fermarsi")
end)

prova("troppo pieno", function()
  in_manuale()
  regola("ME_Speed1", 100)
  gira("imgCom(1)")
  attendi_fino(function() return litri() > 160 end, 60000)
  attendi(3000)
  punti_per_il_troppo_pieno()
end)

for n, motore in ipairs {
  { nome = "M1", selettore = "imgCom(1)", figura = "imgM(0)", uscita = "Q0.0" },
  { nome = "M2", selettore = "imgCom(2)", figura = "imgM(1)", uscita = "Q0.1" },
  { nome = "M3", selettore = "imgCom(3)", figura = "imgM(2)", uscita = "Q0.2" },
  { nome = "M4", selettore = "imgCom(4)", figura = "imgM(3)", uscita = "Q0.4" },
} do
  prova("termico di " .. motore.nome, function()
    in_manuale()
    gira("imgCom(1)")
    attendi(6000)
    if n > 1 then
      gira("imgCom(1)")
      gira(motore.selettore)
    end
    local partito = verifica(acceso(motore.uscita), motore.nome .. " deve partire con il suo selettore")
    clic(motore.figura)
    attendi(200)
    punti(1, partito and not acceso(motore.uscita), "quando scatta il termico " .. motore.nome .. " deve fermarsi")
  end)
end

prova("l'automatico vuole SA1 e Start", function()
  in_manuale()
  premi(start)
  local mosso = attendi_fino(function() return not tutto_fermo() end, 300)
  rilascia(start)
  attendi(2000)
  punti(1, not mosso and tutto_fermo(), "in manuale Start non deve avviare nulla")
  gira(sa1)
  attendi(2000)
  punti(1, tutto_fermo(), "con SA1 in automatico si deve aspettare Start")
end)

prova("ricetta con riscaldamento", function()
  in_automatico(23)
  local visto = osserva(300000)
  punti_per_i_litri(visto, litri_1, litri_2)
  punti(2, visto.vapore, "per scaldare si deve aprire il vapore")
  punti(3, visto.scaricando and visto.gradi >= 22, "si deve scaricare soltanto dopo aver raggiunto la temperatura")
  punti(2, visto.gradi_massimi >= 23 and visto.gradi_massimi <= 25,
        "raggiunta la temperatura il vapore deve chiudersi, non arrivare a " .. visto.gradi_massimi .. " gradi")
  punti(3, visto.finita and litri() <= 1, "il serbatoio deve vuotarsi del tutto e lo scarico fermarsi")
end)

prova("tempo di mescolazione", function()
  in_automatico(20)  -- la temperatura c'è già: resta soltanto il tempo
  local visto = osserva(300000)
  punti(3, visto.scaricando and visto.agitato >= mescola - 1000 and visto.agitato <= mescola + 10000,
        "l'agitatore deve girare circa " .. mescola .. " ms, non " .. visto.agitato)
  attendi(3000)
  if not scorre(mandata_1) then premi_per(start, 300) end
  attendi(1000)
  punti(2, scorre(mandata_1), "finita la ricetta se ne deve poter fare un'altra")
end)

prova("Stop durante il carico", function()
  in_automatico(23)
  attendi(5000)
  local carica = verifica(scorre(mandata_1), "dopo Start si deve caricare il prodotto 1")
  premi(stop_auto)
  attendi(100)
  punti(2, carica and tutto_fermo(), "premendo Stop tutto deve fermarsi")
  rilascia(stop_auto)
  attendi(5000)
  punti(1, carica and tutto_fermo(), "rilasciato Stop la ricetta non deve riprendere da sola")
end)

prova("termico durante il carico", function()
  in_automatico(23)
  attendi(5000)
  local carica = verifica(scorre(mandata_1), "dopo Start si deve caricare il prodotto 1")
  clic("imgM(0)")
  attendi(200)
  punti(1, carica and not acceso("Q0.0"), "quando scatta il termico la pompa deve fermarsi")
  local gialla = attendi_fino(function()
    for n = 4, 7 do
      if elemento("imgL(" .. n .. ")").Picture ~= "imgLNot" then return true end
    end
  end, 2000)
  punti(1, gialla, "con un termico scattato si deve accendere una lampada gialla")
end)
