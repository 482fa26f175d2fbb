-- Il ciclo dei banchi pneumatici: SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico,
-- SB4 ripristino, SB5 emergenza, SA aria. Gli script che lo usano dicono soltanto che cosa cambia.

function premi_per(pulsante, ms)
  premi(pulsante)
  attendi(ms)
  rilascia(pulsante)
  attendi(50)
end

function con_aria()
  run()
  attendi(300)
  clic("imgCom")
  attendi(500)
end

-- banco.sequenza: una riga per passo, i movimenti di un passo vanno insieme; banco.finecorsa: il punto
-- di ogni movimento; banco.aria; banco.uscenti: le bobine che fanno uscire i cilindri.
function prove_del_ciclo(banco)
  local sequenza, finecorsa, aria, uscenti = banco.sequenza, banco.finecorsa, banco.aria, banco.uscenti

  local attesa = {}  -- la sequenza su una riga per passo, in ordine alfabetico
  for n, passo in ipairs(sequenza) do attesa[n] = table.concat(passo, " ") end
  local testo_atteso = table.concat(attesa, ", ")
  local quanti = 0
  for _, passo in ipairs(sequenza) do quanti = quanti + #passo end

  local function arrivato(movimento) return leggi(finecorsa[movimento]) == 1 end
  local function a_riposo()
    for movimento in pairs(finecorsa) do
      if movimento:sub(2) == "-" and not arrivato(movimento) then return false end
    end
    return true
  end
  local function bobine_spente()
    for _, bobina in ipairs(uscenti) do
      if leggi(bobina) == 1 then return false end
    end
    return true
  end

  -- I movimenti nell'ordine in cui arrivano al fine corsa; si ferma dopo "massimo" movimenti.
  local function osserva(ms, massimo)
    local visti, prima = {}, {}
    for movimento in pairs(finecorsa) do prima[movimento] = arrivato(movimento) end
    attendi_fino(function()
      for movimento in pairs(finecorsa) do
        local adesso = arrivato(movimento)
        if adesso and not prima[movimento] then visti[#visti + 1] = movimento end
        prima[movimento] = adesso
      end
      return massimo and #visti >= massimo
    end, ms)
    return visti
  end

  -- I movimenti visti, raccolti in passi lunghi come quelli chiesti.
  local function in_passi(visti)
    local passi, posto = {}, 1
    for _, passo in ipairs(sequenza) do
      local questi = {}
      for _ = 1, #passo do
        questi[#questi + 1] = visti[posto]
        posto = posto + 1
      end
      table.sort(questi)
      passi[#passi + 1] = table.concat(questi, " ")
    end
    return table.concat(passi, ", ")
  end

  prova("a riposo", function()
    run()
    attendi(500)
    clic("imgCom")
    attendi(500)
    punti(2, leggi(aria) == 1, "con SA chiuso l'aria (0Y1) deve esserci")
    attendi(3000)
    punti(2, a_riposo() and bobine_spente(), "senza premere nulla i cilindri devono restare dentro")
  end)

  prova("ciclo singolo", function()
    con_aria()
    premi_per("imgSB2", 200)
    local visti = in_passi(osserva(30000, quanti))
    punti(8, visti == testo_atteso, "la sequenza deve essere " .. testo_atteso .. ", non " .. visti)
    punti(3, #osserva(5000) == 0 and a_riposo(), "il ciclo singolo deve fermarsi dopo una volta")
  end)

  prova("SB2 tenuto premuto", function()
    con_aria()
    premi("imgSB2")
    osserva(30000, quanti)
    punti(2, #osserva(5000) == 0, "con SB2 tenuto premuto il ciclo singolo deve farsi una volta sola")
  end)

  prova("ciclo automatico e sua fine", function()
    con_aria()
    premi_per("imgSB1", 200)
    local primo = in_passi(osserva(30000, quanti))
    local secondo = in_passi(osserva(30000, quanti))
    punti(4, primo == testo_atteso and secondo == testo_atteso, "premuto SB1 la sequenza deve ripetersi")
    osserva(30000, 1)
    premi_per("imgSB3", 200)
    punti(3, #osserva(30000, quanti - 1) == quanti - 1 and a_riposo(), "premuto SB3 il ciclo in corso deve finire")
    punti(3, #osserva(5000) == 0 and a_riposo(), "dopo SB3 il ciclo non deve ricominciare")
  end)

  prova("emergenza", function()
    con_aria()
    premi_per("imgSB2", 200)
    osserva(30000, 1)
    attendi(300)
    clic("ImgEm")
    attendi(200)
    punti(3, leggi(aria) == 0 or bobine_spente(), "con SB5 azionato i movimenti devono fermarsi")
    clic("ImgEm")
    punti(2, #osserva(3000) < quanti - 1, "liberato SB5 il ciclo non deve riprendere da solo")
    premi_per("imgSB4", 300)
    punti(4, attendi_fino(a_riposo, 30000), "dopo l'emergenza i cilindri devono poter tornare a riposo con SB4")
    attendi(1000)
    premi_per("imgSB2", 200)
    punti(3, in_passi(osserva(30000, quanti)) == testo_atteso, "dopo il ripristino il ciclo deve poter ripartire")
  end)

  prova("senza aria", function()
    run()
    attendi(500)
    premi_per("imgSB2", 200)
    attendi(3000)
    punti(1, a_riposo(), "senza aria i cilindri non devono muoversi")
  end)
end
