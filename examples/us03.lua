-- US-03, due unità: M1 stella-triangolo, M2 diretto. Da avviare con --impianto 3.
-- KM1 Q0.0, KM2 stella Q0.1, KM3 triangolo Q0.2, KM4 Q0.3. Blu M1 Q0.4, verde M1 Q0.5, blu M2 Q0.6,
-- verde M2 Q0.7, gialla M1 Q1.0, gialla M2 Q1.1. Le gialle possono anche lampeggiare.

usa("comandi.lua")

local linea, stella, triangolo, m2 = "Q0.0", "Q0.1", "Q0.2", "Q0.3"
local blu1, verde1, blu2, verde2, gialla1, gialla2 = "Q0.4", "Q0.5", "Q0.6", "Q0.7", "Q1.0", "Q1.1"

local function chiuso(contattore) return elemento(contattore).Picture == "imgKMON" end
local function corto() return chiuso("KM(1)") and chiuso("KM(2)") or acceso(stella) and acceso(triangolo) end
local function m1_fermo() return not acceso(linea) and not acceso(stella) and not acceso(triangolo) end
local function m2_fermo() return not acceso(m2) and elemento("imgM2").Picture == "imgM1OFF" end
local function tutto_fermo() return m1_fermo() and m2_fermo() end
local function gira_a(segno) return elemento("imgM").Picture == "imgMON" and elemento(segno).Visible and not corto() end
local function a_stella() return gira_a("imgS") end
local function a_triangolo() return gira_a("imgT") end
local function m2_gira() return elemento("imgM2").Picture == "imgM1ON" and acceso(m2) end

local function m1_a_stella()
  serve(sempre(500, tutto_fermo), "prima di SB2 i due motori sono fermi")
  premi_per("imgStart", 300)
  serve(sempre(1000, a_stella), "dopo SB2 M1 gira a stella")
end

local function m1_a_triangolo()
  m1_a_stella()
  serve(attendi_quando(a_triangolo, 13000), "dopo la stella M1 passa a triangolo")
  attendi(100)
end

-- Tutti e due in marcia; chi non ha il ciclo automatico ci arriva con SB3.
local function tutto_in_marcia()
  m1_a_triangolo()
  if not attendi_quando(m2_gira, 12000) then premi_per("imgSM2", 300) end
  serve(attendi_quando(m2_gira, 15000), "con M1 a triangolo M2 va in marcia")
  serve(sempre(1000, function() return a_triangolo() and m2_gira() end), "M1 a triangolo e M2 restano in marcia")
end

local function ferma_tutto() premi_per("imgStop", 200) end

local rischi, prove_sicure = {}, {}
local function rischio(nome, valore, funzione)
  rischi[#rischi + 1] = funzione
  prove_sicure[#prove_sicure + 1] = { nome, valore, funzione }
end

rischio("interblocco di stella e triangolo", 3, function(chiedi)
  m1_a_triangolo()
  ferma_tutto()
  premi_per("imgStart", 200)
  local mai_corto = true
  local arrivato = attendi_quando(function()
    if corto() then mai_corto = false end
    return acceso(triangolo)
  end, 13000)
  serve(arrivato, "dopo la stella M1 passa a triangolo")
  chiedi(3, mai_corto and not corto(), "stella e triangolo non sono mai chiusi insieme")
  ferma_tutto()
end)

rischio("M2 solo con M1 a triangolo", 6, function(chiedi)
  tutto_in_marcia()
  ferma_tutto()
  attendi(300)
  premi("imgSM2")
  local mai = sempre(500, m2_fermo)
  rilascia("imgSM2")
  chiedi(3, sempre(1000, m2_fermo) and mai, "con M1 fermo SB3 non avvia M2")
  m1_a_stella()
  premi("imgSM2")
  mai = sempre(500, m2_fermo)
  rilascia("imgSM2")
  chiedi(3, sempre(300, m2_fermo) and mai, "con M1 ancora a stella SB3 non avvia M2")
  ferma_tutto()
end)

local function arresto(nome, valore, agisce, smette, testo, dopo)
  rischio(nome, valore, function(chiedi)
    tutto_in_marcia()
    agisce()
    attendi(200)
    chiedi(valore - 1, tutto_fermo(), testo)
    smette()
    chiedi(1, sempre(7000, tutto_fermo), dopo)
  end)
end
arresto("SB1 ferma tutto", 3, function() premi("imgStop") end, function() rilascia("imgStop") end,
        "premuto SB1 i due motori si fermano entro 2 decimi di secondo", "rilasciato SB1 i motori non ripartono da soli")
arresto("emergenza", 3, function() premi("ImgEm") end, function() rilascia("ImgEm") end,
        "con l'emergenza (SB4) i due motori si fermano entro 2 decimi di secondo", "finita l'emergenza i motori non ripartono da soli")
arresto("termico di M1", 3, function() clic("imgRt") end, function() clic("imgRt") end,
        "scattato FR1 si ferma M1, e con lui M2, entro 2 decimi di secondo", "riarmato FR1 i motori non ripartono da soli")

rischio("arresti a stella", 3, function(chiedi)
  for _, come in ipairs {
    { "SB1", function() premi("imgStop") end, function() rilascia("imgStop") end },
    { "l'emergenza", function() premi("ImgEm") end, function() rilascia("ImgEm") end },
    { "FR1", function() clic("imgRt") end, function() clic("imgRt") end },
  } do
    m1_a_stella()
    come[2]()
    attendi(200)
    local fermo = tutto_fermo()
    premi_per("imgStart", 200)
    fermo = fermo and tutto_fermo()
    come[3]()
    chiedi(1, sempre(7000, tutto_fermo) and fermo, "anche a stella " .. come[1] .. " ferma M1, che non parte con SB2 e poi non riparte da solo")
  end
end)

rischio("termico di M2", 4, function(chiedi)
  tutto_in_marcia()
  clic("imgRt2")
  attendi(200)
  chiedi(1, m2_fermo(), "scattato FR2 M2 si ferma entro 2 decimi di secondo")
  premi_per("imgSM2", 300)
  chiedi(1, m2_fermo(), "con FR2 scattato SB3 non avvia M2")
  clic("imgRt2")
  chiedi(2, sempre(5000, m2_fermo), "riarmato FR2 M2 non riparte da solo")
  ferma_tutto()
end)

rischio("fermata del PLC", 2, function(chiedi)
  tutto_in_marcia()
  stop()
  attendi(500)
  run()
  chiedi(2, sempre(9000, tutto_fermo), "dopo STOP e RUN del PLC i motori non ripartono da soli")
end)

prova("M1 a stella e a triangolo", 9, function()
  run()
  attendi(300)
  m1_a_stella()
  punti(2, a_stella() and acceso(linea), "dopo SB2 M1 gira a stella")
  serve(punti(2, attendi_quando(a_triangolo, 13000), "dopo la stella M1 passa a triangolo"), "M1 arriva a triangolo")
  punti(2, sempre(8000, a_triangolo), "M1 resta in marcia a triangolo")
  ferma_tutto()
  attendi(300)
  premi("imgStart")
  attendi(100)
  local _, ms = attendi_quando(function() return not acceso(stella) end, 13000)
  rilascia("imgStart")
  punti(3, ms >= 4300 and ms <= 5500, "la stella dura 5 secondi (tra 4,5 e 5,5)")
end)

prova("ciclo automatico", 6, function()
  run()
  attendi(300)
  m1_a_stella()
  serve(attendi_quando(function() return acceso(triangolo) end, 13000), "dopo la stella M1 passa a triangolo")
  local partito, ms = attendi_quando(function() return acceso(m2) end, 15000)
  serve(punti(3, partito, "con un solo comando su SB2 parte anche M2"), "M2 parte da solo")
  punti(3, ms >= 2500 and ms <= 3500, "M2 parte dopo 3 secondi di triangolo (tra 2,5 e 3,5)")
end)

prova("M2 a mano", 4, function()
  run()
  attendi(300)
  m1_a_triangolo()
  attendi(300)
  serve(m2_fermo(), "all'inizio del triangolo M2 è ancora fermo")
  premi_per("imgSM2", 200)
  punti(2, sempre(1000, m2_gira), "con M1 a triangolo SB3 avvia M2, che resta in marcia")
  attendi(3000)
  clic("imgRt2")
  attendi(300)
  serve(m2_fermo(), "scattato FR2 M2 si ferma")
  clic("imgRt2")
  attendi(300)
  premi_per("imgSM2", 200)
  punti(2, sempre(1000, m2_gira), "riarmato FR2 M2 riparte con SB3")
end)

for _, r in ipairs(prove_sicure) do
  prova(r[1], r[2], function()
    run()
    attendi(300)
    r[3](punti)
  end)
end

prova("il termico di M2 ferma soltanto M2", 2, function()
  run()
  attendi(300)
  tutto_in_marcia()
  clic("imgRt2")
  attendi(200)
  serve(m2_fermo(), "scattato FR2 M2 si ferma")
  punti(2, sempre(2000, a_triangolo), "scattato FR2 M1 resta in marcia")
end)

prova("contattori che si aprono da soli", 4, function()
  run()
  attendi(300)
  for _, quale in ipairs { { "KM(0)", "KM1" }, { "KM(1)", "KM3" } } do
    tutto_in_marcia()
    doppio_clic(quale[1])
    attendi(200)
    punti(2, sempre(1500, m2_fermo), "se " .. quale[2] .. " si apre M2 si ferma entro 2 decimi di secondo")
    ferma_tutto()
  end
end)

local function si_vede(punto) return attendi_quando(function() return acceso(punto) end, 1200) end

prova("lampade", 7, function()
  run()
  attendi(300)
  local ferme = fissa(blu1) and fissa(blu2) and spenta(verde1) and spenta(verde2)
  local gialle_spente = spenta(gialla1) and spenta(gialla2)
  m1_a_triangolo()
  local solo_m1 = acceso(verde1) and not acceso(blu1) and acceso(blu2) and not acceso(verde2)
  attendi(500)
  if not m2_gira() then premi_per("imgSM2", 300) end
  serve(attendi_quando(m2_gira, 15000), "con M1 a triangolo M2 va in marcia")
  attendi(100)
  punti(1, ferme, "con i motori fermi sono accese le due blu e spente le verdi")
  punti(1, solo_m1 and fissa(verde1) and spenta(blu1), "con M1 in marcia la sua verde HL3 è accesa e la sua blu HL2 spenta")
  punti(1, solo_m1 and fissa(verde2) and spenta(blu2), "con M2 in marcia la sua verde HL6 è accesa e la sua blu HL5 spenta")
  gialle_spente = gialle_spente and spenta(gialla1) and spenta(gialla2)
  clic("imgRt2")
  attendi(100)
  punti(1, gialle_spente and si_vede(gialla2) and spenta(gialla1), "con FR2 scattato si accende soltanto la gialla HL4 (Q1.1)")
  clic("imgRt2")
  attendi(100)
  punti(1, gialle_spente and spenta(gialla2), "riarmato FR2 la gialla HL4 si spegne")
  clic("imgRt")
  attendi(100)
  punti(1, gialle_spente and si_vede(gialla1) and spenta(gialla2), "con FR1 scattato si accende soltanto la gialla HL1 (Q1.0)")
  clic("imgRt")
  attendi(100)
  punti(1, gialle_spente and spenta(gialla1), "riarmato FR1 la gialla HL1 si spegne")
end)

collauda(41, function() end, rischi)
