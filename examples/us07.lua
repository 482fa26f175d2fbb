-- US-07, quattro cilindri con valvole bistabili. Da avviare con --impianto 7.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria.

usa("ciclo_pneumatico.lua")

-- La sequenza chiesta si cambia qui: una riga per passo, i movimenti di un passo vanno insieme.
prove_del_ciclo {
  sequenza = {
    { "A+" },
    { "B+" },
    { "C+", "D+" },
    { "C-", "D-" },
    { "B-" },
    { "A-" },
  },
  finecorsa = {
    ["A-"] = "I0.0", ["A+"] = "I0.1",
    ["B-"] = "I0.2", ["B+"] = "I0.3",
    ["C-"] = "I0.4", ["C+"] = "I0.5",
    ["D-"] = "I0.6", ["D+"] = "I0.7",
  },
  aria = "Q1.0",
  uscenti = { "Q0.0", "Q0.2", "Q0.4", "Q0.6" },
}
