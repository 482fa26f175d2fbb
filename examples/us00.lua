-- US-00, marcia e arresto di un motore. Da avviare con --impianto 0.
-- KM Q0.0; lampade blu Q0.1 motore fermo, verde Q0.2 in marcia, gialla Q0.3 termico e guasto.

usa("comandi.lua")

local blu, verde, gialla = "Q0.1", "Q0.2", "Q0.3"

local function gira_il_motore() return acceso("Q0.0") and elemento("imgM").Picture == "imgMON" end
local function fermo() return not acceso("Q0.0") and elemento("imgM").Picture == "imgMOF" end
local function comando_tolto() return not acceso("Q0.0") end

-- Con la macchina ferma: Start, e il motore deve tenersi.
local function marcia()
  serve(fermo(), "prima di Start il motore è fermo")
  premi_per("imgStart", 200)
  serve(sempre(1100, gira_il_motore), "Start avvia il motore, che resta in marcia")
end

local function avvia()
  run()
  attendi(300)
  marcia()
end

local function arresto(chiedi)
  premi("imgStop")
  attendi(100)
  chiedi(5, fermo(), "premuto Stop il motore si ferma entro un decimo di secondo")
  rilascia("imgStop")
  chiedi(3, sempre(1500, fermo), "rilasciato Stop il motore non riparte da solo")
end

local function stop_vince(chiedi)
  premi("imgStart")
  premi("imgStop")
  attendi(100)
  chiedi(3, sempre(1000, fermo), "in marcia, con Stop e Start premuti insieme il motore si ferma")
  rilascia("imgStart")
  rilascia("imgStop")
  attendi(100)
  premi("imgStop")
  premi("imgStart")
  chiedi(2, sempre(1000, comando_tolto), "da fermo, con Stop e Start premuti insieme il motore non parte")
  rilascia("imgStart")
  rilascia("imgStop")
  attendi(200)
  chiedi(1, fermo(), "rilasciati Stop e Start il motore resta fermo")
end

local function termico(chiedi)
  clic("ImgTer")
  attendi(100)
  chiedi(4, fermo(), "scattato il termico il motore si ferma entro un decimo di secondo")
  premi_per("imgStart", 200)
  chiedi(2, fermo(), "con il termico scattato Start non avvia il motore")
  clic("ImgTer")
  chiedi(3, sempre(1500, fermo), "riarmato il termico il motore non riparte da solo")
end

local function emergenza(chiedi)
  premi("ImgEm")
  attendi(100)
  chiedi(4, fermo(), "premuto SB3 (emergenza) il motore si ferma entro un decimo di secondo")
  premi_per("imgStart", 200)
  chiedi(2, fermo(), "con SB3 premuto Start non avvia il motore")
  rilascia("ImgEm")
  chiedi(2, sempre(1500, fermo), "rilasciato SB3 il motore non riparte da solo")
end

local function fermata_della_cpu(chiedi)
  stop()
  attendi(500)
  run()
  chiedi(3, sempre(1500, fermo), "dopo STOP e RUN del PLC il motore non riparte da solo")
end

prova("marcia", 10, function()
  run()
  attendi(300)
  serve(sempre(1100, fermo), "senza premere nulla il motore resta fermo")
  premi("imgStart")
  attendi(100)
  punti(2, gira_il_motore(), "premuto Start il motore parte entro un decimo di secondo")
  attendi(100)
  rilascia("imgStart")
  punti(8, sempre(1500, gira_il_motore), "rilasciato Start il motore resta in marcia (autoritenuta)")
end)

prova("Stop", 10, function()
  avvia()
  arresto(punti)
  premi_per("imgStart", 200)
  punti(2, sempre(500, gira_il_motore), "dopo uno Stop il motore riparte con Start")
end)

prova("Stop vince su Start", 6, function()
  avvia()
  stop_vince(punti)
end)

prova("termico", 9, function()
  avvia()
  termico(punti)
end)

prova("emergenza", 8, function()
  avvia()
  emergenza(punti)
end)

prova("fermata del PLC", 3, function()
  avvia()
  fermata_della_cpu(punti)
end)

prova("lampade", 6, function()
  run()
  attendi(300)
  local ferme = fissa(blu) and spenta(verde)
  local termico_a_posto = spenta(gialla)
  marcia()
  punti(2, ferme, "con il motore fermo la blu è accesa e la verde spenta")
  punti(2, fissa(verde) and spenta(blu), "con il motore in marcia la verde è accesa e la blu spenta")
  clic("ImgTer")
  attendi(100)
  punti(1, termico_a_posto and fissa(gialla), "la gialla è spenta con il termico a posto e accesa fissa con il termico scattato")
  clic("ImgTer")
  attendi(100)
  punti(1, termico_a_posto and spenta(gialla), "riarmato il termico la gialla si spegne")
end)

prova("il contattore si apre da solo", 7, function()
  avvia()
  doppio_clic("imgKM")
  attendi(200)
  serve(punti(2, sempre(1000, comando_tolto), "se KMa si apre senza comando il programma toglie Q0.0 entro 2 decimi di secondo"),
        "aperto KMa il comando è tolto")
  punti(2, lampeggia(gialla), "il guasto del contattore fa lampeggiare la gialla")
  premi_per("imgStart", 200)
  punti(1, sempre(500, comando_tolto), "con il guasto presente Start non avvia il motore")
  premi_per("imgStop", 200)
  punti(1, spenta(gialla), "Stop cancella il guasto e la gialla si spegne")
  premi_per("imgStart", 200)
  punti(1, sempre(500, gira_il_motore), "cancellato il guasto il motore riparte con Start")
end)

collauda(41, marcia, { arresto, stop_vince, termico, emergenza, fermata_della_cpu })
