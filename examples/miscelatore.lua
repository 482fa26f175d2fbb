-- Comandi e sguardi sui miscelatori (US-10, US-12 e US-13); si prendono con usa("miscelatore.lua").

function acceso(punto) return leggi(punto) == 1 end
function litri() return tonumber(elemento("etcap").Caption) end

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

-- Tutti accesi, tutti spenti: anche pompa e valvola di una linea, che lavorano soltanto insieme.
function accesi(uscite)
  for _, uscita in ipairs(uscite) do
    if not acceso(uscita) then return false end
  end
  return true
end
function spenti(uscite)
  for _, uscita in ipairs(uscite) do
    if acceso(uscita) then return false end
  end
  return true
end

-- Tutte le lampade in un momento: per ognuna "1" accesa, "0" spenta, "." non importa.
function lampade(uscite, attese)
  for n, uscita in ipairs(uscite) do
    local attesa = attese:sub(n, n)
    if attesa ~= "." and leggi(uscita) ~= tonumber(attesa) then return false end
  end
  return true
end

-- Accesa in qualche momento dei prossimi due secondi, anche se lampeggia.
function si_accende(punto)
  return attendi_quando(function() return acceso(punto) end, 2000)
end

-- Guarda la ricetta fino alla fine dello scarico, e chiama "anche" a ogni cambiamento, con i millisecondi
-- passati dal cambiamento di prima. I litri sono quelli dei contatori del disegno, che ripartono da zero a
-- ogni inizio del flusso.
function osserva_ricetta(ms, scarica, agita, anche)
  local visto = { litri = { 0, 0 }, agitato = 0 }
  local prima = {}
  for n = 1, 2 do
    local adesso = tonumber(elemento("EtP(" .. n - 1 .. ")").Caption)
    prima[n] = adesso > 2 and adesso or 0  -- il conto di una ricetta di prima non vale
  end
  local agitava, ultimo = false, 0
  visto.finita = attendi_quando(function(adesso)
    local passati = adesso - ultimo
    ultimo = adesso
    for n = 1, 2 do
      local adesso = tonumber(elemento("EtP(" .. n - 1 .. ")").Caption)
      if adesso > prima[n] then visto.litri[n] = visto.litri[n] + adesso - prima[n] end
      prima[n] = adesso
    end
    if visto.scaricando then return not scarica() end
    if agitava then visto.agitato = visto.agitato + passati end
    agitava = agita()
    visto.scaricando = scarica()
    if anche then anche(visto, passati) end
  end, ms)
  return visto
end

function punti_per_i_litri(n_punti, visto, ...)
  for n, chiesti in ipairs { ... } do
    punti(n_punti, math.abs(visto.litri[n] - chiesti) <= 1,
          "si devono caricare " .. chiesti .. " litri di prodotto " .. n .. " (uno in più o in meno)")
  end
  print("litri caricati: " .. visto.litri[1] .. " e " .. visto.litri[2])
end

-- In RUN e senza comandi: tutto deve stare fermo.
function senza_comandi(tutto_fermo)
  run()
  attendi(1000)
  return serve(tutto_fermo(), "senza comandi pompe, valvole e agitatore devono stare fermi")
end

function prova_start_con_stop(in_manuale, comandi, tutto_fermo, carica)
  prova("Start con Stop premuto", 1, function()
    in_manuale()
    gira(comandi.selettore)
    premi(comandi.stop)
    attendi(100)
    premi(comandi.start)
    attendi(300)
    local fermo = tutto_fermo()
    rilascia(comandi.start)
    attendi(200)
    rilascia(comandi.stop)
    attendi(500)
    fermo = fermo and tutto_fermo()
    premi_per(comandi.start, 300)
    serve(carica(), "rilasciato Stop un nuovo Start deve cominciare il carico")
    sicuro(1, true, fermo, "con Stop premuto Start non deve avviare nulla")
  end)
end
