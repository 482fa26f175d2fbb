-- US-01, inversione di marcia. Da avviare con --impianto 1.
-- KM1 (Q0.0) è la marcia indietro, KM2 (Q0.1) la marcia avanti: SB2 avanti, SB3 indietro.
-- Lampade: blu Q0.2 fermo, verdi Q0.3 indietro e Q0.4 avanti, gialla Q0.5 termico, rossa Q0.6 attesa e
-- guasto. In marcia il pulsante dell'altro senso può non contare, fermare o invertire dopo la pausa.

usa("comandi.lua")

local blu, gialla, rossa = "Q0.2", "Q0.5", "Q0.6"
local avanti = { nome = "avanti", pulsante = "imgStart", uscita = "Q0.1", lampada = "Q0.4", contattore = "imgKM2" }
local indietro = { nome = "indietro", pulsante = "imgInd", uscita = "Q0.0", lampada = "Q0.3", contattore = "imgKm1" }
local function altro(senso) return senso == avanti and indietro or avanti end

local function chiuso(senso) return elemento(senso.contattore).Picture == "imgKMON" end
local function insieme()
  return chiuso(avanti) and chiuso(indietro) or acceso(avanti.uscita) and acceso(indietro.uscita)
end
local function fermo() return not acceso(avanti.uscita) and not acceso(indietro.uscita) end
local function gira_in(senso)
  return acceso(senso.uscita) and chiuso(senso) and not acceso(altro(senso).uscita)
end

-- Da fermo, passata la pausa: il pulsante del senso, e il motore deve tenersi.
local function marcia(senso)
  attendi(2500)
  serve(fermo(), "prima del pulsante di marcia il motore è fermo")
  premi_per(senso.pulsante, 300)
  serve(sempre(1100, function() return gira_in(senso) end), "il pulsante " .. senso.nome ..
        " avvia il motore nel suo senso, e il motore resta in marcia")
end

local function avvia(senso)
  run()
  marcia(senso)
end

-- Guarda a ogni millesimo: se i contattori sono mai chiusi insieme, quanto aspetta l'inversione e per
-- quanto intanto è accesa la rossa. "aperto" conta da quando il contattore del senso si è aperto.
local function osserva(senso)
  local v = { mai = true, rossa = 0 }
  local tutti_e_due, suo, di_fronte, rosso
  local function guarda()
    tutti_e_due, suo, di_fronte, rosso = insieme(), acceso(senso.uscita), acceso(altro(senso).uscita), acceso(rossa)
  end
  local function conta(quanti)
    if tutti_e_due then v.mai = false end
    if not v.aperto and not suo then v.aperto = 0 end
    if v.aperto and not v.pausa then
      if di_fronte then quanti = 1 end
      v.aperto = v.aperto + quanti
      if rosso then v.rossa = v.rossa + quanti end
      if di_fronte then v.pausa = v.aperto end
    end
  end
  function v.guarda(ms) a_ogni_millesimo(ms, guarda, conta) end
  return v
end

local function giusta(pausa) return pausa >= 1500 and pausa <= 3000 end

local rischi, prove_sicure = {}, {}
local function rischio(nome, valore, funzione)
  rischi[#rischi + 1] = funzione
  prove_sicure[#prove_sicure + 1] = { nome, valore, funzione }
end

for _, senso in ipairs { avanti, indietro } do
  rischio("Stop in marcia " .. senso.nome, 2, function(chiedi)
    marcia(senso)
    premi("imgStop")
    attendi(100)
    chiedi(1, fermo(), "premuto Stop il motore si ferma entro un decimo di secondo")
    rilascia("imgStop")
    chiedi(1, sempre(4000, fermo), "rilasciato Stop il motore non riparte da solo")
  end)

  rischio("termico in marcia " .. senso.nome, 3, function(chiedi)
    marcia(senso)
    clic("ImgTer")
    attendi(100)
    chiedi(1, fermo(), "scattato il termico il motore si ferma entro un decimo di secondo")
    premi_per(senso.pulsante, 300)
    chiedi(1, sempre(3000, fermo), "con il termico scattato il motore non parte")
    clic("ImgTer")
    chiedi(1, sempre(4000, fermo), "riarmato il termico il motore non riparte da solo")
  end)

  rischio("emergenza in marcia " .. senso.nome, 3, function(chiedi)
    marcia(senso)
    premi("ImgEm")
    attendi(100)
    chiedi(1, fermo(), "premuto SB4 (emergenza) il motore si ferma entro un decimo di secondo")
    premi_per(senso.pulsante, 300)
    chiedi(1, sempre(3000, fermo), "con l'emergenza premuta il motore non parte")
    rilascia("ImgEm")
    chiedi(1, sempre(4000, fermo), "rilasciata l'emergenza il motore non riparte da solo")
  end)

  rischio("interblocco dalla marcia " .. senso.nome, 3, function(chiedi)
    marcia(senso)
    local v = osserva(senso)
    premi(altro(senso).pulsante)
    v.guarda(300)
    rilascia(altro(senso).pulsante)
    v.guarda(5000)
    chiedi(2, v.mai, "premendo l'altro pulsante in marcia i due contattori non sono mai chiusi insieme")
    premi_per("imgStop", 200)
    chiedi(1, sempre(4000, fermo), "uno Stop dopo l'altro pulsante ferma il motore, che non riparte da solo")
  end)
end

rischio("i due pulsanti insieme", 3, function(chiedi)
  marcia(avanti)
  premi_per("imgStop", 200)
  attendi(2500)
  local v = osserva(avanti)
  premi("imgStart")
  premi("imgInd")
  v.guarda(3000)
  rilascia("imgStart")
  rilascia("imgInd")
  v.guarda(4000)
  chiedi(3, v.mai, "con i due pulsanti premuti insieme i due contattori non sono mai chiusi insieme")
  premi_per("imgStop", 200)
end)

rischio("arresti durante l'attesa", 2, function(chiedi)
  for _, arresto in ipairs { "imgStop", "ImgEm" } do
    marcia(avanti)
    premi_per("imgStop", 200)
    premi_per("imgInd", 300)
    premi_per(arresto, 200)
    chiedi(1, sempre(5000, fermo), arresto == "imgStop" and
           "uno Stop durante l'attesa la annulla: il motore non parte da solo" or
           "l'emergenza durante l'attesa la annulla: il motore non parte da solo")
  end
end)

rischio("fermata del PLC", 2, function(chiedi)
  marcia(avanti)
  stop()
  attendi(500)
  run()
  chiedi(2, sempre(4000, fermo), "dopo STOP e RUN del PLC il motore non riparte da solo")
end)

prova("marcia avanti", 3, function()
  avvia(avanti)
  punti(3, sempre(3000, function() return gira_in(avanti) end), "SB2 (avanti) chiude soltanto KM2 e il motore resta in marcia")
end)

prova("marcia indietro", 3, function()
  avvia(indietro)
  punti(3, sempre(3000, function() return gira_in(indietro) end), "SB3 (indietro) chiude soltanto KM1 e il motore resta in marcia")
end)

for _, r in ipairs(prove_sicure) do
  prova(r[1], r[2], function()
    run()
    r[3](punti)
  end)
end

for _, senso in ipairs { avanti, indietro } do
  prova("pausa dopo la marcia " .. senso.nome, 4, function()
    avvia(senso)
    local v = osserva(senso)
    premi(altro(senso).pulsante)
    v.guarda(300)
    rilascia(altro(senso).pulsante)
    v.guarda(5000)
    local da_solo = not v.pausa or giusta(v.pausa) and v.rossa >= 1000
    premi_per("imgStop", 200)
    attendi(3000)
    marcia(senso)
    v = osserva(senso)
    premi("imgStop")
    v.guarda(200)
    rilascia("imgStop")
    premi(altro(senso).pulsante)
    v.guarda(1000)
    rilascia(altro(senso).pulsante)
    v.guarda(3000)
    local attesa, accesa_la_rossa = v.pausa, v.rossa
    if not attesa then premi_per(altro(senso).pulsante, 300) end
    attendi(500)
    serve(gira_in(altro(senso)), "passata la pausa il motore parte nell'altro senso")
    punti(2, da_solo and (not attesa or giusta(attesa)),
          "fra un senso e l'altro passano 2 secondi (tra 1,5 e 3), anche con uno Stop in mezzo")
    punti(2, accesa_la_rossa >= 500, "mentre il motore aspetta di invertire la rossa è accesa")
  end)
end

prova("lampade", 5, function()
  run()
  attendi(300)
  local ferme = fissa(blu) and spenta(avanti.lampada) and spenta(indietro.lampada)
  local altre = spenta(gialla) and spenta(rossa)
  for _, senso in ipairs { avanti, indietro } do
    marcia(senso)
    punti(1, fissa(senso.lampada) and spenta(altro(senso).lampada) and spenta(blu),
          "in marcia " .. senso.nome .. " è accesa soltanto la sua verde, e la blu è spenta")
    altre = altre and spenta(gialla) and spenta(rossa)
    premi_per("imgStop", 200)
  end
  punti(1, ferme, "con il motore fermo la blu è accesa e le verdi sono spente")
  marcia(avanti)
  clic("ImgTer")
  attendi(100)
  punti(1, fissa(gialla), "con il termico scattato la gialla è accesa fissa")
  clic("ImgTer")
  attendi(100)
  punti(1, altre and spenta(gialla), "con il termico a posto la gialla è spenta; senza attesa e senza guasto lo è la rossa")
end)

-- Il guasto c'è già: resta ricordato, si vede, e Stop lo cancella.
local function guasto_ricordato()
  punti(1, lampeggia(rossa), "il guasto di un contattore fa lampeggiare la rossa")
  premi_per("imgStart", 300)
  local bloccato = sempre(3000, fermo)
  premi_per("imgInd", 300)
  punti(1, sempre(3000, fermo) and bloccato, "con il guasto presente il motore non parte")
  premi_per("imgStop", 200)
  local spenta_la_rossa = spenta(rossa)
  attendi(2000)
  premi_per("imgStart", 300)
  attendi(200)
  punti(1, spenta_la_rossa and gira_in(avanti), "Stop cancella il guasto: la rossa si spegne e il motore può ripartire")
end

prova("il contattore si apre da solo", 5, function()
  for _, senso in ipairs { indietro, avanti } do
    run()
    marcia(senso)
    doppio_clic(senso.contattore)
    attendi(200)
    serve(punti(1, sempre(1000, fermo), "se si apre il contattore della marcia " .. senso.nome .. " il programma toglie il comando"),
          "aperto il contattore il comando è tolto")
    if senso == indietro then premi_per("imgStop", 200) end
  end
  guasto_ricordato()
end)

prova("contattore incollato", 6, function()
  avvia(avanti)
  premi_per("imgStop", 200)
  attendi(3000)
  doppio_clic(avanti.contattore)
  attendi(200)
  punti(2, lampeggia(rossa), "anche KM2 incollato è un guasto: la rossa lampeggia")
  premi_per("imgStop", 200)
  attendi(3000)
  doppio_clic(indietro.contattore)
  attendi(50)
  premi("imgStart")
  attendi(100)
  punti(1, not acceso(avanti.uscita), "con KM1 incollato (KM1a a 1) KM2 non è comandato")
  rilascia("imgStart")
  attendi(100)
  guasto_ricordato()
end)

collauda(41, function() end, rischi)
