-- US-15, tre cilindri con valvole monostabili. Da avviare con --impianto 15.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria. Senza bobina un cilindro rientra.

usa("sicurezza.lua")

-- La sequenza chiesta si cambia qui; il tempo massimo è in millisecondi.
local sequenza = { "A+", "B+", "B-", "C+", "C-", "A-" }
local tempo = 15000
local finecorsa = {
  ["A-"] = "I0.0", ["A+"] = "I0.1",
  ["B-"] = "I0.2", ["B+"] = "I0.3",
  ["C-"] = "I0.4", ["C+"] = "I0.5",
}
local movimenti = { "A-", "A+", "B-", "B+", "C-", "C+" }
local aria, bobine = "Q0.0", { "Q0.1", "Q0.2", "Q0.3" }
local hl = { "Q0.4", "Q0.5", "Q0.6", "Q0.7", "Q1.0", "Q1.1" }  -- da HL1 a HL6
local testo_atteso = table.concat(sequenza, ", ")

local function acceso(punto) return leggi(punto) == 1 end
local function arrivato(movimento) return acceso(finecorsa[movimento]) end
local function a_riposo() return arrivato("A-") and arrivato("B-") and arrivato("C-") end
local function bobine_spente()
  for _, bobina in ipairs(bobine) do
    if acceso(bobina) then return false end
  end
  return true
end

-- Le lampade in un momento: per ognuna "1" accesa, "0" spenta, "." non importa.
local function lampade(attese)
  for n, punto in ipairs(hl) do
    local attesa = attese:sub(n, n)
    if attesa ~= "." and leggi(punto) ~= tonumber(attesa) then return false end
  end
  return true
end

local function premi_per(pulsante, ms)
  premi(pulsante)
  attendi(ms)
  rilascia(pulsante)
  attendi(50)
end

-- I movimenti nell'ordine in cui arrivano al fine corsa; si ferma dopo "massimo" movimenti.
local function osserva(ms, massimo, anche)
  local visti, prima = {}, {}
  for _, movimento in ipairs(movimenti) do prima[movimento] = arrivato(movimento) end
  attendi_quando(function(passati)
    for _, movimento in ipairs(movimenti) do
      local adesso = arrivato(movimento)
      if adesso and not prima[movimento] then visti[#visti + 1] = movimento end
      prima[movimento] = adesso
    end
    if anche then anche(#visti, passati) end
    return massimo and #visti >= massimo
  end, ms)
  return visti
end
-- La sequenza, un passo alla volta: due cilindri non sono mai in corsa insieme.
local function in_corsa(cilindro) return not arrivato(cilindro .. "-") and not arrivato(cilindro .. "+") and 1 or 0 end
local function un_ciclo(anche)
  local insieme = false
  local visti = osserva(12000, #sequenza, function(quanti, passati)
    if in_corsa("A") + in_corsa("B") + in_corsa("C") > 1 then insieme = true end
    if anche then anche(quanti, passati) end
  end)
  return not insieme and table.concat(visti, ", ") == testo_atteso
end
local function niente_si_muove(ms)
  local dove = {}
  for n, movimento in ipairs(movimenti) do dove[n] = arrivato(movimento) end
  return not attendi_quando(function()
    for n, movimento in ipairs(movimenti) do
      if arrivato(movimento) ~= dove[n] then return true end
    end
  end, ms)
end
-- Il ciclo è appena entrato nel passo dato.
local function nel_passo(n)
  if n > 1 and #osserva(12000, n - 1) < n - 1 then return false end
  local partenza = sequenza[n]:sub(1, 1) .. (sequenza[n]:sub(2) == "+" and "-" or "+")
  return (attendi_quando(function() return not arrivato(partenza) end, 3000))
end

local function con_aria()
  run()
  attendi(500)
  serve(not acceso(aria) and bobine_spente(), "con SA a 0 l'aria (0Y1) deve essere chiusa e le bobine spente")
  clic("imgCom")
  attendi(500)
  return serve(acceso(aria) and bobine_spente() and a_riposo(), "con SA a 1 l'aria (0Y1) deve aprirsi, e i cilindri restare dentro")
end

local function ripristina()
  premi_per("imgSB4", 300)
  local tornati = attendi_quando(a_riposo, 5000)
  attendi(300)
  return tornati and acceso(aria)
end

prova("ciclo singolo", 14, function()
  con_aria()
  serve(niente_si_muove(3000), "senza premere nulla i cilindri devono restare dentro")
  premi_per("imgSB2", 200)
  local giusto = serve(un_ciclo(), "premuto SB2 la sequenza deve essere " .. testo_atteso .. ", un passo alla volta")
  punti(8, giusto, "premuto SB2 la sequenza deve essere " .. testo_atteso .. ", un passo alla volta")
  punti(2, niente_si_muove(5000) and a_riposo(), "il ciclo singolo deve fermarsi dopo una volta")
  premi("imgSB2")
  serve(un_ciclo(), "un secondo SB2 deve rifare il ciclo")
  punti(2, niente_si_muove(4000), "con SB2 tenuto premuto il ciclo singolo deve farsi una volta sola")
  rilascia("imgSB2")
  clic("imgCom")
  attendi(300)
  sicuro(2, true, not acceso(aria), "riportato SA a 0 l'aria deve chiudersi")
end)

prova("ciclo automatico e sua fine", 8, function()
  con_aria()
  premi_per("imgSB1", 200)
  local ripete = un_ciclo() and un_ciclo() and un_ciclo()
  serve_e_vale(3, ripete, "premuto SB1 la sequenza deve ripetersi")
  osserva(5000, 1)
  premi_per("imgSB3", 200)
  punti(3, #osserva(12000, #sequenza - 1) == #sequenza - 1 and a_riposo(), "premuto SB3 il ciclo in corso deve finire")
  punti(2, niente_si_muove(5000) and a_riposo(), "dopo SB3 il ciclo non deve ricominciare")
end)

prova("condizioni di partenza", 4, function()
  con_aria()
  clic("imgCom")
  attendi(300)
  premi_per("imgSB2", 200)
  attendi(500)
  clic("imgCom")
  sicuro(1, true, niente_si_muove(3000), "uno SB2 premuto senza aria non deve valere quando l'aria arriva")
  for _, mano in ipairs { { valvola = "cmdV2a", dentro = "B-" }, { valvola = "cmdV3a", dentro = "C-" } } do
    -- Ogni cambio di un'uscita, anche di una lampada, rimette la valvola come la vuole la bobina: il
    -- cilindro resta fuori poco.
    premi(mano.valvola)
    serve(attendi_quando(function() return not arrivato(mano.dentro) end, 1000), "un cilindro è stato mosso a mano")
    attendi(20)
    premi("imgSB2")
    attendi(40)
    local ferme = bobine_spente()
    rilascia("imgSB2")
    rilascia(mano.valvola)
    attendi(300)
    sicuro(1, true, ferme and bobine_spente() and a_riposo() and niente_si_muove(2000),
           "con il cilindro " .. mano.dentro:sub(1, 1) .. " fuori SB2 non deve avviare il ciclo")
  end
  premi_per("imgSB2", 200)
  punti(1, un_ciclo(), "con l'aria e i cilindri dentro SB2 deve avviare il ciclo")
end)

prova("aria che manca a metà ciclo", 4, function()
  con_aria()
  for passo = 1, #sequenza do
    premi_per("imgSB2", 100)
    if passo > 1 then serve(nel_passo(passo), "il ciclo deve arrivare al movimento " .. sequenza[passo]) end
    attendi(50)
    clic("imgCom")
    attendi(100)
    serve(niente_si_muove(passo == 2 and tempo + 2000 or 2000), "senza aria il ciclo deve aspettare, quanto vuole")
    clic("imgCom")
    serve(attendi_quando(function() return not a_riposo() end, 5000), "tornata l'aria il ciclo deve riprendere")
    serve(attendi_quando(a_riposo, 12000), "tornata l'aria il ciclo deve finire")
    attendi(500)
  end
  punti(4, niente_si_muove(2000), "se l'aria manca, in ogni passo il ciclo deve aspettare e poi riprendere da dov'era")
end)

for _, caso in ipairs {
  { nome = "nel ciclo singolo", pulsante = "imgSB2", passo = 4 },
  { nome = "nel primo passo", pulsante = "imgSB2", passo = 1 },
  { nome = "nel ciclo automatico", pulsante = "imgSB1", passo = 2 },
} do
  prova("emergenza " .. caso.nome, 8, function()
    con_aria()
    premi_per(caso.pulsante, 20)
    local va = serve(nel_passo(caso.passo), "il ciclo deve arrivare al movimento " .. sequenza[caso.passo])
    attendi(50)
    clic("ImgEm")
    attendi(200)
    sicuro(2, va, not acceso(aria) and bobine_spente(), "premuto SB5 " .. caso.nome .. " le bobine e l'aria devono cadere entro 0,2 secondi")
    local spento = true
    for _, pulsante in ipairs { "imgSB4", "imgSB2", "imgSB1" } do
      premi(pulsante)
      attendi(200)
      spento = spento and not acceso(aria) and bobine_spente()
      rilascia(pulsante)
      attendi(100)
    end
    sicuro(1, va, spento and not acceso(aria) and bobine_spente(), "con SB5 premuto SB1, SB2 e SB4 non devono muovere niente")
    clic("ImgEm")
    local fermo = niente_si_muove(3000) and not acceso(aria)
    premi_per("imgSB2", 300)
    premi_per("imgSB1", 300)
    fermo = fermo and niente_si_muove(1000) and not acceso(aria)
    sicuro(2, va, fermo, "liberato SB5 niente deve muoversi e l'aria non deve tornare finché non si preme SB4")
    punti(1, ripristina(), "dopo l'emergenza SB4 deve ridare l'aria, con la quale i cilindri rientrano")
    sicuro(1, va, niente_si_muove(4000) and a_riposo(), "rientrati i cilindri il ciclo non deve ricominciare da solo")
    premi_per("imgSB2", 200)
    punti(1, un_ciclo(), "dopo il ripristino il ciclo deve poter ripartire")
  end)
end

for _, caso in ipairs { { passo = 2, bobina = bobine[2], valvola = "cmdV2a" }, { passo = 4, bobina = bobine[3], valvola = "cmdV3a" } } do
  prova("tempo massimo al passo " .. sequenza[caso.passo], 6, function()
    con_aria()
    premi("imgSB2")
    attendi(50)
    local comincia, trascorsi = attendi_quando(function() return acceso(caso.bobina) end, 10000)
    rilascia("imgSB2")
    serve(comincia, "il ciclo deve arrivare al movimento " .. sequenza[caso.passo])
    -- Una mano sulla valvola: al rilascio il cilindro rientra anche se la bobina è eccitata.
    attendi(50)
    premi(caso.valvola)
    attendi(20)
    rilascia(caso.valvola)
    local via, dopo = attendi_quando(function() return not acceso(aria) end, tempo + 5000)
    local totale = trascorsi + dopo + 120
    print("l'aria va via dopo " .. totale .. " ms")
    serve(via and bobine_spente(), "se il ciclo non finisce in 15 secondi le bobine e l'aria devono cadere, come in emergenza")
    punti(2, math.abs(totale - tempo) <= 1500, "il tempo massimo di un ciclo deve essere di 15 secondi (uno e mezzo in più o in meno), dall'inizio")
    local accesa = attendi_quando(function() return acceso(hl[6]) end, 1100)
    local fermo = niente_si_muove(2000)
    premi_per("imgSB2", 300)
    premi_per("imgSB1", 300)
    sicuro(1, true, fermo and niente_si_muove(1000) and not acceso(aria), "passato il tempo massimo niente deve muoversi finché non si preme SB4")
    serve(ripristina(), "dopo il tempo massimo SB4 deve ridare l'aria, con la quale i cilindri rientrano")
    punti(1, accesa and not acceso(hl[6]), "HL6 deve accendersi al tempo massimo e spegnersi con SB4")
    attendi(1000)
    premi_per("imgSB2", 200)
    punti(2, un_ciclo(), "dopo il tempo massimo e SB4 il ciclo deve poter ripartire")
  end)
end

for _, caso in ipairs { { nome = "singolo", pulsante = "imgSB2", passo = 4 }, { nome = "automatico", pulsante = "imgSB1", passo = 1 } } do
  prova("STOP e RUN nel ciclo " .. caso.nome, 3, function()
    con_aria()
    premi_per(caso.pulsante, 20)
    local va = serve(nel_passo(caso.passo), "il ciclo deve arrivare al movimento " .. sequenza[caso.passo])
    stop()
    attendi(1000)
    run()
    attendi(100)
    local spente = bobine_spente()
    premi_per("imgSB4", 300)
    serve(attendi_quando(a_riposo, 5000), "dopo STOP e RUN i cilindri devono rientrare, con SB4 se occorre")
    attendi(300)
    sicuro(2, va, spente and niente_si_muove(4000) and bobine_spente(), "dopo STOP e RUN il ciclo " .. caso.nome .. " non deve riprendere")
    premi_per("imgSB2", 200)
    punti(1, un_ciclo(), "dopo STOP e RUN un nuovo SB2 deve rifare il ciclo")
  end)
end

prova("lampade", 10, function()
  run()
  attendi(500)
  serve(lampade("000.00"), "senza aria HL1 e le lampade del ciclo devono essere spente")
  clic("imgCom")
  attendi(500)
  punti(1, lampade("100100"), "con l'aria e i cilindri a riposo devono essere accese HL1 e HL4, e nessun'altra")
  premi_per("imgSB2", 50)
  local sempre_in_corso = true
  local compiuto = un_ciclo(function(visti, passati)
    if passati > 150 and visti < #sequenza and not lampade("101000") then sempre_in_corso = false end
  end)
  punti(2, compiuto and sempre_in_corso, "in tutto il ciclo singolo devono essere accese HL1 e HL3, e nessun'altra")
  attendi(500)
  punti(1, lampade("100100"), "finito il ciclo singolo devono essere accese HL1 e HL4, e nessun'altra")
  premi_per("imgSB1", 100)
  attendi(150)
  punti(2, not a_riposo() and lampade("111000"), "nel ciclo automatico devono essere accese HL1, HL2 e HL3, e nessun'altra")
  premi_per("imgSB3", 100)
  serve(attendi_quando(a_riposo, 12000), "premuto SB3 il ciclo in corso deve finire")
  attendi(500)
  punti(1, lampade("100100"), "finito il ciclo automatico HL2 e HL3 devono spegnersi")
  premi_per("imgSB2", 100)
  serve(nel_passo(2), "il ciclo deve arrivare al movimento " .. sequenza[2])
  clic("ImgEm")
  attendi(200)
  local vista = attendi_quando(function() return acceso(hl[5]) end, 1100)
  punti(2, vista and lampade("0000.0"), "in emergenza deve essere accesa HL5, fissa o lampeggiante, e nessun'altra a cilindri fuori")
  clic("ImgEm")
  attendi(300)
  serve(ripristina(), "dopo l'emergenza SB4 deve ridare l'aria, con la quale i cilindri rientrano")
  punti(1, lampade("100100"), "dopo SB4, rientrati i cilindri, devono essere accese HL1 e HL4, e nessun'altra")
end)

prova_di_sicurezza(59, function()
  con_aria()
  premi_per("imgSB2", 200)
  return un_ciclo()
end, "premuto SB2 la sequenza deve essere " .. testo_atteso)
