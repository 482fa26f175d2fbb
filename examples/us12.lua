-- US-12, miscelatore di due liquidi. Da avviare con --impianto 12.
-- SA automatico, SB11 start e SB10 stop dell'automatico, SB1 emergenza; in manuale un pulsante di start
-- e uno di stop per ogni operazione. Il prodotto scorre solo con pompa e valvola insieme, lo scarico
-- con la sola YV3.
-- La ricetta chiesta si cambia qui. Lo script accetta un litro in più o in meno, i due prodotti insieme
-- o uno dopo l'altro, uno Stop immediato o a fine ciclo, e un programma che ricomincia da solo.
local litri_1, litri_2 = 40, 20
local mescola = 5000  -- ms

usa("comandi.lua")
usa("miscelatore.lua")

local sa, start, stop_auto = "imgCom", "imgSB(0)", "imgSB(1)"
local scarico, agitatore = "Q0.4", "Q0.5"
local mandata_1, mandata_2 = { "Q0.0", "Q0.1" }, { "Q0.2", "Q0.3" }
local comandi = { "Q0.0", "Q0.1", "Q0.2", "Q0.3", "Q0.4", "Q0.5", "Q1.6" }

local function accesi(uscite)
  for _, uscita in ipairs(uscite) do
    if not acceso(uscita) then return false end
  end
  return true
end
local function spenti(uscite)
  for _, uscita in ipairs(uscite) do
    if acceso(uscita) then return false end
  end
  return true
end
local function tutto_fermo() return spenti(comandi) end

local function in_automatico()
  run()
  attendi(200)
  clic(sa)
  attendi(200)
  premi_per(start, 300)
end

local function osserva(ms)
  return osserva_ricetta(ms, function() return acceso(scarico) end, function() return acceso(agitatore) end)
end

prova("a riposo", function()
  in_manuale()
  attendi(3000)
  punti(2, tutto_fermo(), "senza comandi pompe, valvole e agitatore devono stare fermi")
end)

for _, operazione in ipairs {
  { nome = "prodotto 1", start = "imgSB(2)", stop = "imgSB(3)", uscite = mandata_1 },
  { nome = "prodotto 2", start = "imgSB(4)", stop = "imgSB(5)", uscite = mandata_2 },
  { nome = "mescolatore e vapore", start = "imgSB(6)", stop = "imgSB(7)", uscite = { agitatore, "Q1.6" } },
  { nome = "scarico", start = "imgSB(8)", stop = "imgSB(9)", uscite = { scarico } },
} do
  local nome = operazione.nome
  prova("manuale: " .. nome, function()
    in_manuale()
    if nome == "scarico" then
      premi_per("imgSB(2)", 300)
      attendi(15000)
      premi_per("imgSB(3)", 300)
    end
    local prima = litri()
    premi_per(operazione.start, 300)
    attendi(2000)
    local va = accesi(operazione.uscite)
    if nome:find("prodotto") then va = va and litri() > prima end
    if nome == "scarico" then va = va and litri() < prima end
    punti(2, va, "in manuale lo Start deve avviare " .. nome .. ", che resta in funzione (autoritenuta)")
    premi(operazione.stop)
    attendi(100)
    punti(1, va and spenti(operazione.uscite), "in manuale lo Stop deve fermare " .. nome)
    rilascia(operazione.stop)
    attendi(2000)
    punti(1, va and tutto_fermo(), "rilasciato lo Stop " .. nome .. " non deve ripartire")
  end)
end

prova("troppo pieno", function()
  in_manuale()
  premi_per("imgSB(2)", 300)
  attendi_fino(function() return litri() > 160 end, 120000)
  attendi(5000)
  punti_per_il_troppo_pieno()
end)

prova("l'automatico vuole SA e Start", function()
  in_manuale()
  premi(start)
  local mosso = attendi_fino(function() return not tutto_fermo() end, 300)
  rilascia(start)
  attendi(2000)
  punti(1, not mosso and tutto_fermo(), "in manuale lo Start dell'automatico non deve avviare nulla")
  clic(sa)
  attendi(2000)
  punti(1, tutto_fermo(), "con SA in automatico si deve aspettare Start")
end)

prova("ricetta", function()
  in_automatico()
  local visto = osserva(300000)
  punti_per_i_litri(visto, litri_1, litri_2)
  punti(3, visto.scaricando and visto.agitato >= mescola - 1000 and visto.agitato <= mescola + 3000,
        "l'agitatore deve girare circa " .. mescola .. " ms, non " .. visto.agitato)
  punti(3, visto.finita and litri() <= 1, "il serbatoio deve vuotarsi del tutto e lo scarico chiudersi")
  attendi(3000)
  if spenti(mandata_1) and spenti(mandata_2) then premi_per(start, 300) end
  attendi(1000)
  punti(2, visto.finita and (accesi(mandata_1) or accesi(mandata_2)), "finita la ricetta se ne deve poter fare un'altra")
end)

prova("Stop dell'automatico", function()
  in_automatico()
  attendi(3000)
  local carica = verifica(accesi(mandata_1) or accesi(mandata_2), "dopo Start si deve caricare")
  premi_per(stop_auto, 300)
  local subito = tutto_fermo()
  attendi(120000)
  local fermo = tutto_fermo()
  -- Chi si ferma alla fine ha bisogno dello Stop soltanto se il ciclo ricomincia da solo.
  if carica and fermo and not subito then
    premi_per(start, 300)
    osserva(300000)
    fermo = attendi_fino(function() return accesi(mandata_1) or accesi(mandata_2) end, 10000)
  end
  punti(3, carica and fermo, "lo Stop deve fermare il ciclo, subito o alla fine")
end)

for _, fase in ipairs { "carico", "scarico" } do
  prova("emergenza in fase di " .. fase, function()
    in_automatico()
    attendi(3000)
    local va = accesi(mandata_1) or accesi(mandata_2)
    if fase == "scarico" then
      va = attendi_fino(function() return acceso(scarico) end, 300000)
      attendi(1000)
    end
    verifica(va, "dopo Start si deve arrivare alla fase di " .. fase)
    clic("ImgEm")
    attendi(200)
    punti(2, va and tutto_fermo(), "con l'emergenza tutto deve fermarsi")
    punti(1, attendi_fino(function() return elemento("imgL(7)").Picture ~= "imgLNot" end, 2000),
          "con l'emergenza la lampada rossa deve accendersi")
    clic("ImgEm")
    attendi(5000)
    punti(1, va and tutto_fermo(), "finita l'emergenza il ciclo non deve riprendere da solo")
  end)
end
