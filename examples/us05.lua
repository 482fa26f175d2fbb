-- US-05, due cilindri con valvole bistabili. Da avviare con --impianto 5.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria.

usa("ciclo_pneumatico.lua")

-- La sequenza chiesta si cambia qui: una riga per passo, i movimenti di un passo vanno insieme.
prove_del_ciclo {
  sequenza = {
    { "A+" },
    { "B+" },
    { "B-" },
    { "A-" },
  },
  finecorsa = {
    ["A-"] = "I0.4", ["A+"] = "I0.5",
    ["B-"] = "I0.6", ["B+"] = "I0.7",
  },
  aria = "Q0.0",
  uscenti = { "Q0.1", "Q0.3" },
}
