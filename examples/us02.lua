-- US-02, avviatore stella/triangolo. Da avviare con --impianto 2.
-- Stop è su I0.0, Start su I0.1. KM1 linea Q0.0, KM2 stella Q0.1, KM3 triangolo Q0.2.
-- Lampade: blu Q0.3 fermo, verdi Q0.4 stella e Q0.5 triangolo, gialla Q0.6 termico e guasto.

usa("comandi.lua")

local linea, stella, triangolo = "Q0.0", "Q0.1", "Q0.2"
local blu, verde_stella, verde_triangolo, gialla = "Q0.3", "Q0.4", "Q0.5", "Q0.6"
local km1, km3, km2 = "KM(0)", "KM(1)", "KM(2)"

local function fermo() return not acceso(linea) and not acceso(stella) and not acceso(triangolo) end
local function chiuso(contattore) return elemento(contattore).Picture == "imgKMON" end
local function corto() return chiuso(km2) and chiuso(km3) or acceso(stella) and acceso(triangolo) end
local function a_stella() return elemento("imgM").Picture == "imgMON" and elemento("imgS").Visible and not corto() end
local function a_triangolo() return elemento("imgM").Picture == "imgMON" and elemento("imgT").Visible and not corto() end

local function marcia_a_stella()
  serve(sempre(500, fermo), "prima di Start i contattori sono aperti")
  premi_per("imgStart", 300)
  serve(sempre(1100, a_stella), "dopo Start il motore gira a stella")
end

local function marcia_a_triangolo()
  marcia_a_stella()
  serve(attendi_quando(a_triangolo, 13000), "dopo la stella il motore passa a triangolo")
  serve(sempre(1100, a_triangolo), "a triangolo il motore resta in marcia")
end

-- Un avviamento guardato a ogni millesimo: quanto dura la stella, quanto la pausa con il solo KM1.
local function misura()
  local t = { stella = 0, pausa = 0, mai_corto = true, sempre_linea = true }
  local in_corto, in_linea, in_stella, in_triangolo
  local function guarda()
    in_corto, in_linea, in_stella, in_triangolo = corto(), acceso(linea), acceso(stella), acceso(triangolo)
  end
  local function conta(quanti)
    if in_corto then t.mai_corto = false end
    if in_triangolo then
      t.arrivato = true
    elseif in_stella then
      t.stella = t.stella + quanti
    elseif t.stella > 0 then
      t.pausa = t.pausa + quanti
      if not in_linea then t.sempre_linea = false end
    end
    return t.arrivato
  end
  premi("imgStart")
  if not a_ogni_millesimo(300, guarda, conta) then
    rilascia("imgStart")
    a_ogni_millesimo(13700, guarda, conta)
  end
  rilascia("imgStart")
  return t
end
local function cinque_secondi(t) return t.arrivato and t.stella >= 4500 and t.stella <= 5500 end

local rischi, prove_sicure = {}, {}
local function rischio(nome, valore, funzione)
  rischi[#rischi + 1] = funzione
  prove_sicure[#prove_sicure + 1] = { nome, valore, funzione }
end

rischio("interblocco", 3, function(chiedi)
  marcia_a_triangolo()
  premi_per("imgStop", 200)
  local t = misura()
  serve(t.arrivato, "dopo la stella il motore passa a triangolo")
  chiedi(3, t.mai_corto and not corto(), "stella e triangolo non sono mai chiusi insieme")
  premi_per("imgStop", 200)
end)

for _, fase in ipairs { { "a stella", marcia_a_stella }, { "a triangolo", marcia_a_triangolo } } do
  local quando, porta = fase[1], fase[2]

  rischio("Stop " .. quando, 2, function(chiedi)
    porta()
    premi("imgStop")
    attendi(100)
    chiedi(1, fermo(), "premuto Stop " .. quando .. " tutti i contattori si aprono entro un decimo di secondo")
    rilascia("imgStop")
    chiedi(1, sempre(7000, fermo), "rilasciato Stop il motore non riparte da solo")
  end)

  rischio("termico " .. quando, 2, function(chiedi)
    porta()
    clic("imgRt")
    attendi(100)
    local aperti = fermo()
    premi_per("imgStart", 300)
    chiedi(1, aperti and fermo(), "scattato il termico " .. quando .. " tutti i contattori si aprono entro un decimo di secondo, e Start non avvia")
    clic("imgRt")
    chiedi(1, sempre(7000, fermo), "riarmato il termico il motore non riparte da solo")
  end)

  rischio("emergenza " .. quando, 3, function(chiedi)
    premi_per("imgStop", 200)
    local prima = misura()
    premi_per("imgStop", 200)
    porta()
    premi("ImgEm")
    attendi(100)
    local aperti = fermo()
    premi_per("imgStart", 300)
    chiedi(1, aperti and fermo(), "con l'emergenza " .. quando .. " tutti i contattori si aprono entro un decimo di secondo, e Start non avvia")
    rilascia("ImgEm")
    chiedi(1, sempre(7000, fermo), "finita l'emergenza il motore non riparte da solo")
    local t = misura()
    serve(t.arrivato, "dopo un'emergenza Start avvia di nuovo il motore")
    chiedi(1, t.stella >= 0.9 * prima.stella, "dopo un'emergenza si ricomincia da stella, per tutto il suo tempo")
    premi_per("imgStop", 200)
  end)

  rischio("fermata del PLC " .. quando, 1, function(chiedi)
    porta()
    stop()
    attendi(500)
    run()
    chiedi(1, sempre(7000, fermo), "dopo STOP e RUN del PLC il motore non riparte da solo")
  end)
end

prova("avviamento", 10, function()
  run()
  attendi(300)
  marcia_a_stella()
  punti(3, acceso(linea) and acceso(stella), "dopo Start il motore gira a stella: KM1 e KM2 chiusi")
  serve(punti(4, attendi_quando(a_triangolo, 13000), "dopo la stella il motore passa a triangolo: KM1 e KM3 chiusi"),
        "il motore arriva a triangolo")
  premi_per("imgStart", 300)
  punti(3, sempre(10000, a_triangolo), "a triangolo il motore resta in marcia, anche se si preme di nuovo Start")
end)

prova("tempi", 9, function()
  run()
  attendi(300)
  marcia_a_triangolo()
  premi_per("imgStop", 200)
  local t = misura()
  serve(t.arrivato, "dopo la stella il motore passa a triangolo")
  punti(5, cinque_secondi(t), "la stella dura 5 secondi (tra 4,5 e 5,5)")
  punti(4, t.sempre_linea and t.pausa >= 50 and t.pausa <= 1000,
        "fra stella e triangolo c'è una pausa con il solo KM1 (tra 0,05 e 1 secondo)")
end)

for _, r in ipairs(prove_sicure) do
  prova(r[1], r[2], function()
    run()
    attendi(300)
    r[3](punti)
  end)
end

prova("lampade", 5, function()
  run()
  attendi(300)
  local ferme = fissa(blu) and spenta(verde_stella) and spenta(verde_triangolo)
  local termico_a_posto = spenta(gialla)
  marcia_a_stella()
  local stella_giusta = fissa(verde_stella) and spenta(verde_triangolo) and spenta(blu)
  termico_a_posto = termico_a_posto and not acceso(gialla)
  serve(attendi_quando(a_triangolo, 13000), "dopo la stella il motore passa a triangolo")
  attendi(100)
  punti(1, stella_giusta, "a stella è accesa soltanto la verde HL3 (Q0.4)")
  punti(1, fissa(verde_triangolo) and spenta(verde_stella) and spenta(blu), "a triangolo è accesa soltanto la verde HL4 (Q0.5)")
  clic("imgRt")
  attendi(100)
  punti(1, fissa(gialla) and termico_a_posto, "la gialla è spenta con il termico a posto e accesa fissa con il termico scattato")
  clic("imgRt")
  attendi(100)
  punti(1, termico_a_posto and spenta(gialla), "riarmato il termico la gialla si spegne")
  punti(1, ferme and fissa(blu) and spenta(verde_triangolo), "con il motore fermo è accesa la blu e le verdi sono spente")
end)

prova("stella incollata", 4, function()
  run()
  attendi(300)
  marcia_a_triangolo()
  premi_per("imgStop", 200)
  marcia_a_stella()
  -- KM2 viene tenuto chiuso: il doppio clic lo richiude appena il programma lo apre.
  serve(attendi_quando(function() return not acceso(stella) end, 13000), "finita la stella KM2 si apre")
  if not chiuso(km2) then doppio_clic(km2) end
  punti(4, not attendi_quando(function() return acceso(triangolo) end, 2500),
        "se KM2a resta a 1 il triangolo non si chiude")
end)

prova("contattori che si chiudono da fermo", 3, function()
  run()
  attendi(300)
  marcia_a_stella()
  premi_per("imgStop", 200)
  for _, quale in ipairs { { km1, "KM1" }, { km2, "KM2" }, { km3, "KM3" } } do
    attendi(300)
    doppio_clic(quale[1])
    attendi(200)
    local visto = lampeggia(gialla)
    premi_per("imgStart", 300)
    visto = fermo() and visto
    premi_per("imgStop", 200)
    punti(1, visto and spenta(gialla), "anche " .. quale[2] .. " che si chiude da fermo è un guasto, ricordato fino a Stop")
  end
end)

prova("contattori diversi dal comando", 9, function()
  run()
  attendi(300)
  for _, guasto in ipairs {
    { km1, marcia_a_triangolo, "KM1 si apre a triangolo" },
    { km3, marcia_a_triangolo, "KM3 si apre a triangolo" },
    { km2, marcia_a_triangolo, "KM2 si chiude a triangolo" },
    { km2, marcia_a_stella, "KM2 si apre a stella" },
  } do
    guasto[2]()
    doppio_clic(guasto[1])
    attendi(200)
    punti(1, sempre(1500, fermo), "se " .. guasto[3] .. " senza comando il programma ferma tutto entro 2 decimi di secondo")
    if guasto[2] == marcia_a_triangolo then premi_per("imgStop", 200) end
  end
  serve(fermo(), "il guasto ferma il motore")
  punti(2, lampeggia(gialla), "il guasto di un contattore fa lampeggiare la gialla")
  premi_per("imgStart", 300)
  local bloccato = sempre(1000, fermo)
  premi_per("imgStop", 200)
  punti(1, spenta(gialla), "Stop cancella il guasto e la gialla si spegne")
  marcia_a_stella()
  punti(2, bloccato, "con il guasto presente Start non avvia il motore; cancellato il guasto, sì")
end)

collauda(41, function() end, rischi)
