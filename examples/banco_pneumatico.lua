-- Le prove dei banchi pneumatici: SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico,
-- SB4 ripristino, SB5 emergenza, SA aria. Gli script che le usano dicono soltanto che cosa cambia.

usa("comandi.lua")

-- banco.sequenza: una riga per passo, i movimenti di un passo vanno insieme; banco.finecorsa: il punto
-- di ogni movimento; banco.pistoni: i pistoni del disegno; banco.aria: l'uscita 0Y1; banco.selettore:
-- l'ingresso di SA; banco.hl1 aria, banco.hl2 automatico; banco.tempo: il tempo massimo in ms;
-- banco.velocita: i regolatori al massimo; banco.emergenze: il passo in cui scatta l'emergenza nel ciclo
-- singolo e nell'automatico. Facoltativi: banco.pausa, fra il primo e il secondo passo;
-- banco.partenza, se la pagina chiede le condizioni di partenza; banco.fuori_a: pulsante che fa uscire A;
-- banco.fuori_a_mano: quelli che fanno uscire gli altri; banco.lampade: { in_corso =, a_riposo =, ritorno =, emergenza = } con le uscite che ci sono.
function prove_del_banco(banco)
  local sequenza, finecorsa, aria = banco.sequenza, banco.finecorsa, banco.aria
  local lampade = banco.lampade or {}

  local attesa, quanti = {}, 0  -- la sequenza in ordine alfabetico dentro ogni passo
  for n, passo in ipairs(sequenza) do
    attesa[n] = table.concat(passo, " ")
    quanti = quanti + #passo
  end
  local testo_atteso = table.concat(attesa, ", ")

  local function arrivato(movimento) return leggi(finecorsa[movimento]) == 1 end
  local function opposto(movimento)
    return movimento:sub(1, 1) .. (movimento:sub(2) == "+" and "-" or "+")
  end
  local function a_riposo()
    for movimento in pairs(finecorsa) do
      if movimento:sub(2) == "-" and not arrivato(movimento) then return false end
    end
    return true
  end

  -- Una domanda: i pistoni sono ancora dov'erano quando è stata preparata?
  local function posizione_tenuta()
    local dove = {}
    for n, pistone in ipairs(banco.pistoni) do dove[n] = elemento(pistone).Left end
    return function()
      for n, pistone in ipairs(banco.pistoni) do
        if elemento(pistone).Left ~= dove[n] then return false end
      end
      return true
    end
  end

  -- Nessun pistone si sposta in questo tempo.
  local function immobili(ms) return sempre(ms, posizione_tenuta()) end

  -- I movimenti nell'ordine in cui arrivano al fine corsa; si ferma dopo "massimo" movimenti.
  local function osserva(ms, massimo)
    local visti, prima = {}, {}
    for movimento in pairs(finecorsa) do prima[movimento] = arrivato(movimento) end
    aspetta(function()
      for movimento in pairs(finecorsa) do
        local adesso = arrivato(movimento)
        if adesso and not prima[movimento] then visti[#visti + 1] = movimento end
        prima[movimento] = adesso
      end
      return massimo and #visti >= massimo
    end, ms)
    return visti
  end

  local function in_movimento(cilindro) return not arrivato(cilindro .. "-") and not arrivato(cilindro .. "+") end
  local cilindri = {}
  for movimento in pairs(finecorsa) do
    if movimento:sub(2) == "+" then cilindri[#cilindri + 1] = movimento:sub(1, 1) end
  end

  -- Un ciclo, da capo o da un passo: la sequenza è quella chiesta, nessun cilindro si muove fuori del suo
  -- passo, e i movimenti di un passo che comincia vanno insieme.
  local function ciclo_giusto(dal_passo)
    for n = dal_passo or 1, #sequenza do
      local passo = sequenza[n]
      local suoi = {}
      for _, movimento in ipairs(passo) do suoi[movimento:sub(1, 1)] = true end
      local da_solo, insieme = true, #passo == 1 or n == dal_passo
      local compiuto = aspetta(function()
        local tutti, mossi = true, true
        for _, movimento in ipairs(passo) do
          tutti = tutti and arrivato(movimento)
          mossi = mossi and in_movimento(movimento:sub(1, 1))
        end
        insieme = insieme or mossi
        for _, cilindro in ipairs(cilindri) do
          if not suoi[cilindro] and in_movimento(cilindro) then da_solo = false end
        end
        return tutti
      end, 20000)
      if not compiuto or not da_solo or not insieme then return false end
    end
    return a_riposo()
  end

  -- Vero quando, compiuti i passi che vengono prima, comincia il primo movimento del passo.
  local function in_corsa(passo)
    for n = 1, passo - 1 do osserva(20000, #sequenza[n]) end
    local movimento = sequenza[passo][1]
    local prima = arrivato(opposto(movimento))
    return aspetta(function() return in_movimento(movimento:sub(1, 1)) end, 20000) and (prima or passo == 1)
  end

  local function dai_aria()
    if leggi(banco.selettore) == 0 then clic("imgCom") end
    attendi(500)
    serve(a_riposo(), "all'inizio i cilindri sono a riposo")
  end
  local function con_aria()
    run()
    attendi(300)
    dai_aria()
  end

  local function ripristina()
    premi("imgSB4")
    local tornati = aspetta(a_riposo, 15000)
    attendi(300)
    rilascia("imgSB4")
    attendi(200)
    return tornati
  end

  local function ciclo_singolo()
    premi("imgSB2")
    local giusto = ciclo_giusto()
    rilascia("imgSB2")
    attendi(100)
    return giusto
  end

  -- Il pulsante del ciclo; nel collaudo chi non ha il ciclo automatico va avanti con quello singolo.
  local function comincia(pulsante, riserva)
    premi_per(pulsante, 200)
    attendi(500)
    if a_riposo() and riserva then premi_per(riserva, 200) end
  end

  -- ---- sicurezza ----

  local meta = #sequenza // 2 + 1

  local function emergenza(pulsante, passo, riserva)
    return function(chiedi)
      comincia(pulsante, riserva)
      serve(in_corsa(passo), "il ciclo arriva al movimento " .. sequenza[passo][1])
      attendi(200)
      clic("ImgEm")
      attendi(200)
      chiedi(1, leggi(aria) == 0, "premuto SB5 l'aria (0Y1) va via entro 2 decimi di secondo")
      local ancora_li = posizione_tenuta()
      local fermi = immobili(1000)
      for _, comando in ipairs { "imgSB4", "imgSB2", "imgSB1" } do premi_per(comando, 300) end
      fermi = immobili(500) and fermi and ancora_li()
      chiedi(1, fermi and leggi(aria) == 0, "con SB5 premuto niente si muove, nemmeno con SB1, SB2 e SB4")
      clic("ImgEm")
      fermi = immobili(3000)
      premi_per("imgSB2", 300)
      premi_per("imgSB1", 300)
      chiedi(1, immobili(1500) and fermi and ancora_li(), "liberato SB5 niente si muove finché non si preme SB4")
      chiedi(1, ripristina(), "dopo l'emergenza SB4 riporta i cilindri a riposo")
      chiedi(1, immobili(4000) and a_riposo(), "tornati i cilindri a riposo il ciclo non ricomincia da solo")
    end
  end
  local nel_singolo, nell_automatico = banco.emergenze[1], banco.emergenze[2]
  local emergenza_singolo, emergenza_automatico = emergenza("imgSB2", nel_singolo), emergenza("imgSB1", nell_automatico)

  local function fermata_della_cpu(chiedi)
    comincia("imgSB1", "imgSB2")
    serve(in_corsa(1), "premuto SB1 il ciclo comincia")
    attendi(200)
    stop()
    attendi(1000)
    run()
    local in_sospeso = {}
    for _, movimento in ipairs(sequenza[1]) do in_sospeso[movimento] = true end
    local continua = false
    for _, movimento in ipairs(osserva(12000)) do
      if not in_sospeso[movimento] then continua = true end
      in_sospeso[movimento] = nil
    end
    chiedi(2, not continua, "dopo STOP e RUN a metà corsa il ciclo non continua: al più finisce la corsa della valvola già spostata")
    local tornati = ripristina()
    chiedi(1, tornati and immobili(4000) and a_riposo(), "dopo STOP e RUN SB4 riporta i cilindri a riposo, e il ciclo non ricomincia")
  end

  local function partenza_senza_aria(chiedi)
    clic("imgCom")
    attendi(300)
    premi_per("imgSB2", 200)
    attendi(500)
    clic("imgCom")
    chiedi(1, immobili(4000), "uno SB2 premuto senza aria non conta: quando l'aria arriva niente si muove")
  end

  -- ---- le prove ----

  local altre = (lampade.in_corso and 1 or 0) + (lampade.a_riposo and 1 or 0) + (lampade.ritorno and 1 or 0) +
                (lampade.emergenza and 1 or 0)
  local in_piu = altre + (banco.pausa and 2 or 0) + (banco.partenza and 2 or 0) + (banco.insieme and 3 or 0)
  local per_la_sequenza = 8 - math.min(in_piu, 4)
  local per_la_mancanza = 5 - (in_piu - math.min(in_piu, 4))

  prova("aria", 4, function()
    con_aria()
    local aperta, lampada = leggi(aria) == 1, fissa(banco.hl1)
    clic("imgCom")
    attendi(200)
    aperta, lampada = aperta and leggi(aria) == 0, lampada and spenta(banco.hl1)
    clic("imgCom")
    attendi(200)
    serve(immobili(2000), "senza premere altro i cilindri restano fermi")
    premi_per("imgSB2", 200)
    serve(in_corsa(1), "premuto SB2 il ciclo comincia")
    punti(2, aperta, "SA apre e chiude l'aria (0Y1)")
    clic("ImgEm")
    attendi(200)
    punti(2, lampada and spenta(banco.hl1), "HL1 è accesa con l'aria aperta, e spenta con SA a 0 e in emergenza")
  end)

  prova("ciclo singolo", per_la_sequenza + 4, function()
    con_aria()
    serve(punti(per_la_sequenza, ciclo_singolo(), "premuto SB2 la sequenza è " .. testo_atteso .. ", un passo alla volta"),
          "la sequenza è giusta")
    punti(4, immobili(5000) and a_riposo(), "il ciclo singolo si ferma dopo una volta")
  end)

  if banco.pausa then
    prova("pausa", 2, function()
      con_aria()
      premi_per("imgSB2", 200)
      local fuori = sequenza[1][1]
      serve(aspetta(function() return arrivato(fuori) end, 15000), "il cilindro arriva fuori")
      local riparte, ms = attendi_quando(function() return not arrivato(fuori) end, 10000)
      punti(2, riparte and ms >= 800 and ms <= 1500, "fuori il cilindro aspetta un secondo (tra 0,8 e 1,5)")
    end)
  end

  prova("SB2 tenuto premuto", 3, function()
    con_aria()
    premi("imgSB2")
    serve(#osserva(40000, quanti) == quanti, "premuto SB2 il ciclo si compie")
    punti(3, immobili(5000), "con SB2 tenuto premuto il ciclo singolo si fa una volta sola")
  end)

  prova("aria che manca a metà ciclo", per_la_mancanza, function()
    con_aria()
    local riprende = true
    for passo = 1, #sequenza do
      premi_per("imgSB2", 200)
      serve(in_corsa(passo), "il ciclo arriva al movimento " .. sequenza[passo][1])
      attendi(200)
      clic("imgCom")
      attendi(100)
      -- Al primo passo manca per più del tempo massimo, che conta soltanto con l'aria.
      if not immobili(passo == 1 and banco.tempo or 4000) then riprende = false end
      clic("imgCom")
      serve(ciclo_giusto(passo), "mancata l'aria a metà di " .. sequenza[passo][1] ..
            " il ciclo aspetta e poi riprende da lì, fine corsa per fine corsa")
      attendi(1000)
    end
    punti(per_la_mancanza, riprende, "se l'aria manca, in ogni passo il ciclo aspetta e poi riprende da dov'era")
  end)

  prova("cilindri veloci", 3, function()
    for _, regolatore in ipairs(banco.velocita) do regola(regolatore[1], regolatore[2]) end
    con_aria()
    punti(3, ciclo_singolo() and immobili(3000), "con la velocità al massimo la sequenza resta giusta")
  end)

  prova("ciclo automatico e sua fine", 10, function()
    con_aria()
    premi_per("imgSB1", 200)
    local cicli = { ciclo_giusto(), ciclo_giusto(), ciclo_giusto() }
    serve(punti(4, cicli[1] and cicli[2] and cicli[3], "premuto SB1 la sequenza si ripete"),
          "il ciclo si ripete")
    serve(in_corsa(1), "il ciclo ricomincia")
    premi_per("imgSB3", 200)
    punti(3, ciclo_giusto(), "premuto SB3 il ciclo in corso finisce")
    punti(3, a_riposo() and immobili(5000), "finito il ciclo dopo SB3, non ne comincia un altro")
  end)

  prova("tempo massimo", 6, function()
    con_aria()
    premi("imgSB2")
    attendi(200)
    rilascia("imgSB2")
    serve(in_corsa(1), "premuto SB2 il ciclo comincia")
    -- Una mano tiene la valvola di A sul rientro: il ciclo non può andare avanti. Dice quanto è passato, in ms.
    local function trattieni(pulsante, passati)
      while leggi(aria) == 1 and passati < banco.tempo + 5000 do
        premi(pulsante)
        attendi(50)
        rilascia(pulsante)
        attendi(50)
        passati = passati + 100
      end
      return passati
    end
    local function giusto(passati) return passati >= banco.tempo - 1000 and passati <= banco.tempo + 1500 end
    local passati = trattieni("cmdV1b", 200)
    serve(leggi(aria) == 0, "se il ciclo non finisce nel tempo massimo l'aria va via, come in emergenza")
    punti(2, giusto(passati),
          ("il tempo massimo del ciclo è di %d secondi (uno in meno o uno e mezzo in più)"):format(banco.tempo // 1000))
    local fermi = immobili(3000)
    premi_per("imgSB2", 300)
    punti(1, immobili(1000) and fermi and leggi(aria) == 0, "passato il tempo massimo niente si muove finché non si preme SB4")
    serve(ripristina(), "SB4 riporta i cilindri a riposo")
    attendi(500)
    punti(1, ciclo_singolo(), "dopo SB4 il ciclo riparte con SB2")
    attendi(1000)
    -- E adesso A non può rientrare: il tempo è quello di tutto il ciclo, non di un passo.
    local trascorsi = 0
    premi("imgSB2")
    for passo = 1, #sequenza - 1 do
      while trascorsi < 40000 do
        local tutti = true
        for _, movimento in ipairs(sequenza[passo]) do tutti = tutti and arrivato(movimento) end
        if tutti then break end
        attendi(10)
        trascorsi = trascorsi + 10
      end
    end
    rilascia("imgSB2")
    while arrivato("A+") and trascorsi < 40000 do
      attendi(10)
      trascorsi = trascorsi + 10
    end
    punti(2, giusto(trattieni(banco.fuori_a, trascorsi)), "il tempo massimo vale anche nell'ultimo passo, e conta dall'inizio del ciclo")
  end)

  prova("emergenza nel ciclo singolo", 5, function()
    con_aria()
    emergenza_singolo(punti)
  end)

  prova("emergenza nel ciclo automatico", 5, function()
    con_aria()
    emergenza_automatico(punti)
  end)

  prova("fermata del PLC", 3, function()
    con_aria()
    fermata_della_cpu(punti)
  end)

  if banco.insieme then
    prova("movimenti insieme", 3, function()
      con_aria()
      for _, mano in ipairs(banco.insieme) do
        premi_per("imgSB2", 200)
        serve(in_corsa(mano.passo), "il ciclo arriva al movimento " .. sequenza[mano.passo][1])
        attendi(200)
        premi_per(mano.contro, 100)
        attendi(4000)
        serve(immobili(1000), "un passo con due movimenti aspetta tutti e due i fine corsa")
        premi_per(mano.avanti, 100)
        serve(ciclo_giusto(mano.passo), "quando arriva anche il secondo il ciclo va avanti")
        attendi(1000)
      end
      punti(3, a_riposo(), "un passo con due movimenti aspetta tutti e due i fine corsa, anche se una mano ne trattiene uno")
    end)
  end

  if banco.partenza then
    prova("condizioni di partenza", 2, function()
      con_aria()
      local senza_aria
      partenza_senza_aria(function(_, condizione) senza_aria = condizione end)
      local fermi = true
      for _, pulsante in ipairs(banco.fuori_a_mano) do
        premi_per(pulsante, 100)
        attendi(4000)
        serve(not a_riposo(), "un cilindro è stato mosso a mano")
        premi_per("imgSB2", 200)
        fermi = immobili(3000) and fermi
        serve(ripristina(), "SB4 riporta i cilindri a riposo")
        attendi(500)
      end
      serve(ciclo_singolo(), "con i cilindri a riposo e l'aria SB2 avvia il ciclo")
      punti(1, fermi, "con un cilindro fuori SB2 non avvia il ciclo")
      punti(1, senza_aria, "uno SB2 premuto senza aria non conta: quando l'aria arriva niente si muove")
    end)
  end

  prova("lampada del ciclo automatico", 3, function()
    con_aria()
    premi_per("imgSB2", 200)
    serve(in_corsa(1), "premuto SB2 il ciclo comincia")
    local singolo = spenta(banco.hl2)
    osserva(40000, quanti - #sequenza[1] + 1)
    aspetta(a_riposo, 40000)
    attendi(500)
    premi_per("imgSB1", 200)
    serve(in_corsa(1), "premuto SB1 il ciclo comincia")
    local automatico = fissa(banco.hl2)
    premi_per("imgSB3", 200)
    serve(aspetta(a_riposo, 40000), "premuto SB3 il ciclo in corso finisce")
    attendi(200)
    punti(2, automatico and spenta(banco.hl2), "HL2 è accesa nel ciclo automatico, e spenta almeno da quando finisce")
    punti(1, automatico and singolo, "HL2 è spenta nel ciclo singolo")
  end)

  if altre > 0 then
    prova("altre lampade", altre, function()
      con_aria()
      local prima, durante, dopo = {}, {}, {}
      for quale, punto in pairs(lampade) do prima[quale] = spenta(punto) end
      if lampade.a_riposo then
        prima.a_riposo = fissa(lampade.a_riposo)
        for _, pulsante in ipairs(banco.fuori_a_mano) do
          premi_per(pulsante, 100)
          attendi(4000)
          prima.a_riposo = not acceso(lampade.a_riposo) and prima.a_riposo
          serve(ripristina(), "SB4 riporta i cilindri mossi a mano")
        end
      end
      premi_per("imgSB2", 200)
      serve(in_corsa(1), "premuto SB2 il ciclo comincia")
      attendi(200)
      for quale, punto in pairs(lampade) do durante[quale] = acceso(punto) end
      serve(in_corsa(meta), "il ciclo arriva al movimento " .. sequenza[meta][1])
      for quale, punto in pairs(lampade) do
        if quale == "in_corso" then durante[quale] = durante[quale] and acceso(punto)
        else durante[quale] = durante[quale] or acceso(punto) end
      end
      osserva(40000, 1)
      serve(aspetta(a_riposo, 40000), "il ciclo finisce")
      attendi(500)
      for quale, punto in pairs(lampade) do dopo[quale] = spenta(punto) end
      if lampade.in_corso then
        punti(1, prima.in_corso and durante.in_corso and dopo.in_corso, "HL3 è accesa con il ciclo in corso e spenta a ciclo finito")
      end
      if lampade.a_riposo then
        punti(1, prima.a_riposo and not durante.a_riposo and fissa(lampade.a_riposo),
              banco.nome_a_riposo .. " è accesa con tutti i cilindri a riposo e spenta quando uno non lo è")
      end
      premi_per("imgSB2", 200)
      serve(in_corsa(1), "premuto SB2 il ciclo comincia")
      attendi(200)
      clic("ImgEm")
      attendi(200)
      local vista = lampade.emergenza and aspetta(function() return acceso(lampade.emergenza) end, 1200)
      clic("ImgEm")
      attendi(300)
      local quieta = lampade.ritorno and spenta(lampade.ritorno)
      premi("imgSB4")
      attendi(100)
      serve(not a_riposo(), "dopo l'emergenza i cilindri tornano soltanto con SB4")
      local torna = lampade.ritorno and aspetta(function() return acceso(lampade.ritorno) end, 600) and not a_riposo()
      serve(aspetta(a_riposo, 15000), "SB4 riporta i cilindri a riposo")
      attendi(300)
      rilascia("imgSB4")
      attendi(300)
      if lampade.ritorno then
        punti(1, prima.ritorno and not durante.ritorno and quieta and torna and spenta(lampade.ritorno),
              "HL5 è accesa mentre SB4 riporta i cilindri, e spenta altrimenti")
      end
      if lampade.emergenza then
        punti(1, prima.emergenza and not durante.emergenza and vista and spenta(lampade.emergenza),
              "HL6 è accesa in emergenza, e spenta prima e dopo il ritorno a riposo")
      end
    end)
  end

  local rischi = { emergenza_singolo, emergenza("imgSB1", nell_automatico, "imgSB2"), fermata_della_cpu }
  if banco.partenza then rischi[#rischi + 1] = partenza_senza_aria end
  collauda(41, dai_aria, rischi)
end
