-- Quello che può fare male a qualcuno; si prende con usa("sicurezza.lua").

local primo_pericolo

-- Un momento pericoloso, in qualunque prova: che cosa non doveva succedere.
function pericolo(messaggio) primo_pericolo = primo_pericolo or messaggio end

-- Come punti, per una richiesta di sicurezza. "arrivata" dice se la macchina è arrivata al momento in
-- cui la richiesta si prova: chi non ci arriva perde i punti, ma non è pericoloso.
function sicuro(n, arrivata, condizione, messaggio)
  if arrivata and not condizione then pericolo(messaggio) end
  return punti(n, arrivata and condizione, messaggio)
end

-- Una premessa che porta anche punti: a chi manca mancano questi e quelli che seguono.
function serve_e_vale(n, condizione, messaggio)
  serve(condizione, messaggio)
  return punti(n, condizione, messaggio)
end

-- L'ultima prova: vale i suoi punti, più di quattro decimi del totale, se la macchina lavora e in
-- nessuna prova è successo qualcosa di pericoloso. Così chi è pericoloso non è sufficiente.
function prova_di_sicurezza(n, lavora, che_cosa)
  prova("nessun pericolo", n, function()
    serve(lavora(), che_cosa)
    punti(n, not primo_pericolo, "in nessuna prova deve succedere qualcosa che può fare male")
    if primo_pericolo then print("il primo pericolo: " .. primo_pericolo) end
  end)
end
