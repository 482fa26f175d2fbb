-- Comandi e sguardi che servono a più script; si prendono con usa("comandi.lua").

function acceso(punto) return leggi(punto) == 1 end
function accesa(lampada) return elemento(lampada).Picture ~= "imgLNot" end

-- Accesa in qualche momento dei prossimi due secondi, anche se lampeggia.
function si_accende(lampada)
  return attendi_fino(function() return accesa(lampada) end, 2000)
end

function premi_per(pulsante, ms)
  premi(pulsante)
  attendi(ms)
  rilascia(pulsante)
  attendi(100)
end

function gira(selettore)
  clic(selettore)
  attendi(200)
end

function in_manuale()
  run()
  attendi(200)
end
