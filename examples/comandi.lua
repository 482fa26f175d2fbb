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

-- Lascia passare "ms" e guarda ogni "passo" millisecondi: vero se la condizione vale tutte le volte. Dove
-- intanto non è cambiato niente varrebbe quello di prima.
function sempre(ms, condizione, passo)
  local vale = condizione()
  for _ = 1, ms / (passo or 50) do
    if attendi(passo or 50) and not condizione() then vale = false end
  end
  return vale
end

-- Come attendi_fino, guardando ogni 10 millisecondi: basta dove il millesimo non conta, ed è più svelta.
function aspetta(condizione, ms)
  local cambiato = true
  for _ = 1, ms / 10 do
    if cambiato and condizione() then return true end
    cambiato = attendi(10)
  end
  return cambiato and condizione()
end

-- Come un'occhiata a ogni millesimo dei prossimi "ms": "guarda" legge, "conta(quanti)" riceve i millesimi in
-- cui si vedeva quello, e può dare vero per finire.
function a_ogni_millesimo(ms, guarda, conta)
  local contati = 0
  guarda()
  return attendi_quando(function(adesso)
    if adesso > contati + 1 then conta(adesso - contati - 1) end
    guarda()
    local finito = adesso > contati and conta(1)
    contati = adesso
    return finito
  end, ms)
end

-- Le lampade si guardano sull'uscita che le comanda, per un secondo e due decimi: più di un lampeggio.
function fissa(punto) return sempre(1200, function() return acceso(punto) end) end
function spenta(punto) return sempre(1200, function() return not acceso(punto) end) end

-- Da 3 a 60 cambiamenti in tre secondi: SM0.5 ne fa sei.
function lampeggia(punto)
  local cambi, prima = 0, acceso(punto)
  for _ = 1, 300 do
    if attendi(10) then
      local adesso = acceso(punto)
      if adesso ~= prima then cambi = cambi + 1 end
      prima = adesso
    end
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
