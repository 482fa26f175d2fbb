-- Comandi e sguardi che servono a più script; si prendono con usa("comandi.lua").

function acceso(punto) return leggi(punto) == 1 end
function accesa(lampada) return elemento(lampada).Picture ~= "imgLNot" end

-- Accesa in qualche momento dei prossimi due secondi, anche se lampeggia.
function si_accende(lampada)
  return attendi_quando(function() return accesa(lampada) end, 2000)
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

-- Lascia passare "ms" e guarda ogni "passo" millisecondi: vero se la condizione vale tutte le volte.
function sempre(ms, condizione, passo)
  local vale = condizione()
  for _ = 1, ms / (passo or 50) do
    attendi(passo or 50)
    if not condizione() then vale = false end
  end
  return vale
end

-- Come attendi_fino, guardando ogni 10 millisecondi: basta dove il millesimo non conta, ed è più svelta.
function aspetta(condizione, ms)
  for _ = 1, ms / 10 do
    if condizione() then return true end
    attendi(10)
  end
  return condizione()
end

-- Le lampade si guardano sull'uscita che le comanda, per un secondo e due decimi: più di un lampeggio.
function fissa(punto) return sempre(1200, function() return acceso(punto) end) end
function spenta(punto) return sempre(1200, function() return not acceso(punto) end) end

-- Da 3 a 60 cambiamenti in tre secondi: SM0.5 ne fa sei.
function lampeggia(punto)
  local cambi, prima = 0, acceso(punto)
  for _ = 1, 300 do
    attendi(10)
    local adesso = acceso(punto)
    if adesso ~= prima then cambi = cambi + 1 end
    prima = adesso
  end
  return cambi >= 3 and cambi <= 60
end

-- I rischi sono funzioni che ricevono "chiedi": nella loro prova è punti, nel collaudo una premessa, così
-- al programma che mette in pericolo qualcuno mancano tutti i punti del collaudo.
function collauda(punti_del_collaudo, prepara, rischi)
  prova("collaudo di sicurezza", punti_del_collaudo, function()
    local sicuro = true
    local function premessa(_, condizione, messaggio)
      if not condizione then sicuro = false end
      return serve(condizione, messaggio)
    end
    run()
    attendi(300)
    for _, rischio in ipairs(rischi) do
      prepara()
      rischio(premessa)
    end
    punti(punti_del_collaudo, sicuro, "il programma non mette in pericolo nessuno: vale tutte insieme le richieste di sicurezza")
  end)
end
