-- Sguardi sui miscelatori di due liquidi (US-10 e US-12); si prendono con usa("miscelatore.lua").

function litri() return tonumber(elemento("etcap").Caption) end

-- Guarda la ricetta fino alla fine dello scarico, e chiama "anche" a ogni scansione. I litri sono quelli
-- dei contatori del disegno, che ripartono da zero a ogni inizio del flusso.
function osserva_ricetta(ms, scarica, agita, anche)
  local visto = { litri = { 0, 0 }, agitato = 0 }
  local prima = { 0, 0 }
  visto.finita = attendi_fino(function()
    for n = 1, 2 do
      local adesso = tonumber(elemento("EtP(" .. n - 1 .. ")").Caption)
      if adesso > prima[n] then visto.litri[n] = visto.litri[n] + adesso - prima[n] end
      prima[n] = adesso
    end
    if visto.scaricando then return not scarica() end
    if agita() then visto.agitato = visto.agitato + 1 end
    visto.scaricando = scarica()
    if anche then anche(visto) end
  end, ms)
  return visto
end

function punti_per_i_litri(visto, ...)
  for n, chiesti in ipairs { ... } do
    punti(4, math.abs(visto.litri[n] - chiesti) <= 1,
          "si devono caricare " .. chiesti .. " litri di prodotto " .. n .. ", non " .. visto.litri[n])
  end
end

function punti_per_il_troppo_pieno()
  punti(3, litri() >= 100 and litri() <= 163,
        "il carico deve arrivare in alto e fermarsi prima di traboccare, non a " .. litri() .. " litri")
end
