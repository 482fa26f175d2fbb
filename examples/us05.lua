-- US-05, due cilindri con valvole bistabili. Da avviare con --impianto 5.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria.

usa("banco_pneumatico.lua")

-- La sequenza chiesta si cambia qui: una riga per passo, i movimenti di un passo vanno insieme.
prove_del_banco {
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
  fuori_a = "CmdV1a",
  emergenze = { 2, 3 },
  pistoni = { "imgPA", "imgP2" },
  selettore = "I0.0",
  hl1 = "Q0.5",
  hl2 = "Q0.6",
  tempo = 10000,
  velocita = { { "UpDP(0)", 9 }, { "UpDP(1)", 9 }, { "UpDP(2)", 9 }, { "UpDP(3)", 9 }, { "ME_Speed", 10 } },
}
