-- US-08, livello di un serbatoio. Da avviare con --impianto 8.
-- Vasca di carico: SL1 massimo, SL2 minimo; serbatoio: SL3 minimo, SL4 metà, SL5 massimo; tutti a 0 quando
-- sono intervenuti. SA1 automatico (1), SA2 YV1, SA3 YV2, SA4 pompa; SB2 start e SB3 stop dell'automatico,
-- SB1 arresto generale. Riarmato il termico la pompa può ripartire da sola oppure no. Una lampada accesa
-- può anche lampeggiare.

usa("comandi.lua")

local sa1, sa2, sa3, sa4 = "imgCom(0)", "imgCom(1)", "imgCom(2)", "imgCom(3)"
local start, stop_auto, arresto = "imgSB6", "imgAlt(1)", "imgAlt(0)"
local yv1, pompa, yv2 = "Q0.0", "Q0.1", "Q0.2"
local hl1, hl2, hl3, hl4 = "Q0.3", "Q0.4", "Q0.5", "Q0.6"

local function intervenuto(livello) return leggi(livello) == 0 end
local function vasca_piena() return intervenuto("I0.0") end
local function vasca_vuota() return intervenuto("I0.1") end
local function serbatoio_vuoto() return intervenuto("I0.3") end
local function mezzo() return intervenuto("I0.4") end
local function pieno() return intervenuto("I0.5") end
local function tutto_fermo() return not acceso(yv1) and not acceso(pompa) and not acceso(yv2) end
local function si_vede(lampada) return aspetta(function() return acceso(lampada) end, 1200) end
local function non_trabocca() return elemento("shL1").Height <= 900 and elemento("shL2").Height <= 1400 end

local function comincia()
  run()
  attendi(300)
  serve(sempre(1100, tutto_fermo), "senza comandi le valvole sono chiuse e la pompa è ferma")
end

local function avvia_automatico()
  gira(sa1)
  premi_per(start, 300)
  serve(sempre(1000, function() return acceso(yv1) or vasca_piena() end), "dopo Start la vasca si riempie")
end

-- In manuale: la vasca vuota e il serbatoio sotto la metà, con i selettori di nuovo a riposo.
local function svuota()
  gira(sa4)
  serve(aspetta(vasca_vuota, 120000), "in manuale SA4 fa vuotare la vasca alla pompa")
  gira(sa4)
  if mezzo() then
    gira(sa3)
    serve(aspetta(function() return not mezzo() end, 60000), "in manuale SA3 scarica il serbatoio")
    gira(sa3)
  end
end

-- ---- sicurezza: ogni rischio comincia e finisce in manuale con i selettori a riposo ----

local rischi, prove_sicure = {}, {}
local function rischio(nome, valore, funzione)
  rischi[#rischi + 1] = funzione
  prove_sicure[#prove_sicure + 1] = { nome, valore, funzione }
end

rischio("arresto generale in manuale", 2, function(chiedi)
  gira(sa2)
  gira(sa3)
  gira(sa4)
  serve(acceso(yv1) and acceso(pompa), "in manuale SA2 e SA4 comandano YV1 e pompa")
  premi(arresto)
  attendi(100)
  chiedi(2, sempre(1500, tutto_fermo), "SB1 premuto ferma tutto anche in manuale, entro un decimo di secondo")
  gira(sa2)
  gira(sa3)
  gira(sa4)
  rilascia(arresto)
  attendi(300)
end)

rischio("termico in manuale", 2, function(chiedi)
  gira(sa4)
  attendi(1000)
  serve(acceso(pompa), "in manuale SA4 avvia la pompa")
  clic("imgP1")
  attendi(100)
  chiedi(2, sempre(1000, function() return not acceso(pompa) end), "in manuale, scattato il termico, la pompa si ferma entro un decimo di secondo")
  gira(sa4)
  clic("imgP1")
  attendi(200)
end)

rischio("vasca piena", 2, function(chiedi)
  gira(sa2)
  serve(acceso(yv1) or vasca_piena(), "in manuale SA2 apre YV1")
  serve(aspetta(vasca_piena, 120000), "in manuale SA2 riempie la vasca")
  attendi(200)
  chiedi(2, sempre(5000, function() return not acceso(yv1) end) and non_trabocca(), "con la vasca piena YV1 si chiude anche con SA2 azionato, e la vasca non trabocca")
  gira(sa2)
end)

rischio("marcia a secco", 4, function(chiedi)
  gira(sa4)
  serve(acceso(pompa), "in manuale SA4 avvia la pompa")
  serve(aspetta(vasca_vuota, 120000), "in manuale SA4 fa vuotare la vasca alla pompa")
  attendi(200)
  chiedi(2, sempre(2000, function() return not acceso(pompa) end), "in manuale, con la vasca vuota, la pompa si ferma anche con SA4 azionato")
  gira(sa4)
  svuota()
  avvia_automatico()
  local a_secco = false
  local riempita = aspetta(function()
    if vasca_vuota() and acceso(pompa) then a_secco = true end
    return not vasca_vuota()
  end, 30000)
  serve(riempita, "in automatico la vasca si riempie")
  chiedi(2, not a_secco, "in automatico la pompa aspetta che la vasca non sia più vuota")
  gira(sa1)
end)

rischio("arresto generale in automatico", 4, function(chiedi)
  svuota()
  avvia_automatico()
  serve(aspetta(function() return acceso(pompa) end, 30000), "in automatico la pompa parte")
  premi(arresto)
  attendi(100)
  chiedi(2, sempre(1000, tutto_fermo), "SB1 premuto ferma tutto anche in automatico, entro un decimo di secondo")
  rilascia(arresto)
  chiedi(2, sempre(5000, tutto_fermo), "rilasciato SB1 l'automatico non riparte da solo")
  gira(sa1)
end)

rischio("termico in automatico", 2, function(chiedi)
  svuota()
  avvia_automatico()
  serve(aspetta(function() return acceso(pompa) end, 30000), "in automatico la pompa parte")
  clic("imgP1")
  attendi(100)
  chiedi(2, sempre(1000, function() return not acceso(pompa) end), "in automatico, scattato il termico, la pompa si ferma entro un decimo di secondo")
  gira(sa1)
  clic("imgP1")
  attendi(200)
end)

rischio("serbatoio pieno", 2, function(chiedi)
  gira(sa2)
  attendi(10000)
  gira(sa4)
  serve(aspetta(pieno, 240000), "in manuale SA2 e SA4 riempiono il serbatoio")
  attendi(200)
  chiedi(2, sempre(5000, function() return not acceso(pompa) end) and non_trabocca(), "con il serbatoio pieno la pompa si ferma anche con SA4 azionato, e il serbatoio non trabocca")
  gira(sa2)
  gira(sa4)
end)

-- ---- le prove ----

prova("comandi manuali", 6, function()
  comincia()
  for _, comando in ipairs { { sa2, yv1, "SA2 apre YV1, e tolto la chiude" }, { sa4, pompa, "SA4 avvia la pompa, e tolto la ferma" },
                             { sa3, yv2, "SA3 apre YV2, e tolto la chiude" } } do
    gira(comando[1])
    local da_solo = 0
    for _, uscita in ipairs { yv1, pompa, yv2 } do da_solo = da_solo + leggi(uscita) end
    local azionata = acceso(comando[2])
    gira(comando[1])
    punti(2, azionata and da_solo == 1 and tutto_fermo(), "in manuale (SA1 a 0) " .. comando[3])
  end
end)

prova("l'automatico vuole SA1 e Start", 6, function()
  comincia()
  premi(start)
  local mosso = not sempre(300, tutto_fermo)
  rilascia(start)
  mosso = not sempre(1000, tutto_fermo) or mosso
  gira(sa1)
  local aspetta_start = sempre(2000, tutto_fermo) and not acceso(hl4)
  gira(sa2)
  gira(sa4)
  local ignorati = tutto_fermo()
  gira(sa2)
  gira(sa4)
  premi_per(start, 300)
  serve(acceso(yv1) and acceso(pompa), "con SA1 a 1 (automatico) Start avvia YV1 e la pompa")
  punti(2, not mosso, "in manuale Start non avvia nulla")
  punti(2, aspetta_start, "con SA1 in automatico si aspetta Start")
  punti(2, ignorati, "in automatico SA2 e SA4 non comandano")
end)

prova("riempimento in automatico", 7, function()
  comincia()
  avvia_automatico()
  punti(2, acceso(yv1) and acceso(pompa), "dopo Start la vasca si riempie e la pompa parte")
  local massimo, secco, piena = 0, false, false
  local riempito = aspetta(function()
    if vasca_vuota() and acceso(pompa) then secco = true end
    if vasca_piena() then piena = true end
    massimo = math.max(massimo, elemento("shL1").Height)
    return pieno()
  end, 240000)
  serve(riempito, "in automatico il serbatoio si riempie fino al massimo")
  attendi(300)
  local ferma = sempre(20000, function() return not acceso(pompa) end)
  punti(3, ferma and elemento("shL2").Height <= 1400, "con il serbatoio pieno la pompa si ferma e resta ferma")
  punti(2, piena and not secco and massimo <= 900 and not vasca_vuota(), "in automatico la vasca si mantiene piena, senza traboccare")
end)

prova("la pompa riparte sotto la metà", 8, function()
  comincia()
  avvia_automatico()
  serve(aspetta(pieno, 240000), "in automatico il serbatoio si riempie fino al massimo")
  attendi(1000)
  gira(sa3)
  serve(punti(2, acceso(yv2), "anche in automatico SA3 apre YV2"), "in automatico SA3 scarica")
  local presto = false
  local sceso = aspetta(function()
    if mezzo() and acceso(pompa) then presto = true end
    return not mezzo()
  end, 120000)
  gira(sa3)
  serve(sceso, "il serbatoio scende sotto la metà")
  local riparte = aspetta(function() return acceso(pompa) end, 3000)
  punti(3, riparte and not presto, "la pompa riparte solo quando il serbatoio scende sotto la metà")
  local fermata = false
  local riempito = aspetta(function()
    if mezzo() and not pieno() and not acceso(pompa) then fermata = true end
    return pieno()
  end, 240000)
  punti(3, riparte and riempito and not fermata, "ripartita, la pompa riempie fino al massimo senza fermarsi a metà")
end)

prova("serbatoio vuoto", 3, function()
  comincia()
  gira(sa3)
  serve(acceso(yv2), "in manuale SA3 apre YV2")
  serve(aspetta(serbatoio_vuoto, 120000), "in manuale SA3 vuota il serbatoio")
  attendi(200)
  punti(3, sempre(2000, function() return not acceso(yv2) end), "con il serbatoio vuoto YV2 si chiude anche con SA3 azionato")
end)

prova("Stop dell'automatico", 4, function()
  comincia()
  avvia_automatico()
  serve(aspetta(function() return acceso(pompa) end, 3000), "dopo Start la pompa parte")
  premi(stop_auto)
  attendi(100)
  local fermato = tutto_fermo()
  rilascia(stop_auto)
  punti(2, fermato and sempre(3000, tutto_fermo), "SB3 (stop) ferma la pompa e chiude YV1, e l'automatico non riprende da solo")
  premi_per(start, 300)
  attendi(500)
  punti(2, fermato and acceso(pompa), "dopo uno stop l'automatico riparte con Start")
end)

prova("da automatico a manuale", 2, function()
  comincia()
  avvia_automatico()
  serve(aspetta(function() return acceso(pompa) end, 3000), "dopo Start la pompa parte")
  gira(sa1)
  punti(2, sempre(2000, tutto_fermo), "girato SA1 in manuale con gli altri selettori a riposo tutto si ferma")
end)

for _, r in ipairs(prove_sicure) do
  prova(r[1], r[2], function()
    comincia()
    r[3](punti)
  end)
end

prova("lampade in manuale", 3, function()
  comincia()
  local spente = spenta(hl1) and spenta(hl2) and spenta(hl3) and spenta(hl4)
  gira(sa4)
  attendi(200)
  serve(acceso(pompa), "in manuale SA4 avvia la pompa")
  local pompa_vista = si_vede(hl1) and spenta(hl2) and spenta(hl3) and spenta(hl4)
  clic("imgP1")
  attendi(200)
  local termico_visto = si_vede(hl2) and spenta(hl1) and spenta(hl3)
  clic("imgP1")
  gira(sa4)
  termico_visto = termico_visto and spenta(hl2) and spenta(hl1)
  svuota()
  attendi(200)
  local vuota_vista = si_vede(hl3) and spenta(hl2)
  gira(sa2)
  serve(aspetta(function() return not vasca_vuota() end, 30000), "in manuale SA2 riempie la vasca")
  gira(sa2)
  vuota_vista = vuota_vista and spenta(hl3)
  punti(1, spente and pompa_vista, "HL1 è accesa soltanto con la pompa in marcia")
  punti(1, spente and termico_visto, "HL2 è accesa soltanto con il termico scattato")
  punti(1, spente and vuota_vista, "HL3 è accesa soltanto con la vasca vuota")
end)

prova("lampade dell'automatico", 2, function()
  comincia()
  gira(sa1)
  local aspetta_start = spenta(hl4)
  premi_per(start, 300)
  serve(acceso(pompa), "dopo Start la pompa parte")
  local viste = si_vede(hl4)
  local pompa_vista = si_vede(hl1)
  premi_per(stop_auto, 200)
  punti(1, aspetta_start and viste and spenta(hl4), "HL4 si accende con Start e si spegne con lo stop")
  punti(1, aspetta_start and pompa_vista and spenta(hl1), "anche in automatico HL1 dice se la pompa è in marcia")
end)

collauda(41, function()
  serve(sempre(500, tutto_fermo), "con i selettori a riposo tutto è fermo")
end, rischi)
