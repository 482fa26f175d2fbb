-- US-15, tre cilindri con valvole monostabili. Da avviare con --impianto 15.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria. Senza bobina un cilindro rientra.

usa("ciclo_pneumatico.lua")

-- La sequenza chiesta si cambia qui: una riga per passo, i movimenti di un passo vanno insieme.
prove_del_ciclo {
  sequenza = {
    { "A+" },
    { "B+" },
    { "B-" },
    { "C+" },
    { "C-" },
    { "A-" },
  },
  finecorsa = {
    ["A-"] = "I0.0", ["A+"] = "I0.1",
    ["B-"] = "I0.2", ["B+"] = "I0.3",
    ["C-"] = "I0.4", ["C+"] = "I0.5",
  },
  aria = "Q0.0",
  uscenti = { "Q0.1", "Q0.2", "Q0.3" },
}
