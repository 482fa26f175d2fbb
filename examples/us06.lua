-- US-06, tre cilindri con valvole bistabili. Da avviare con --impianto 6.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria.

usa("banco_pneumatico.lua")

-- La sequenza chiesta si cambia qui: una riga per passo, i movimenti di un passo vanno insieme.
prove_del_banco {
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
  fuori_a = "CmdV1a",
  emergenze = { 2, 4 },
  pistoni = { "imgV1", "imgV2", "imgV3" },
  selettore = "I0.6",
  hl1 = "Q0.7",
  hl2 = "Q1.0",
  lampade = { in_corso = "Q1.1", a_riposo = "Q1.2", ritorno = "Q1.3", emergenza = "Q1.4" },
  nome_a_riposo = "HL4",
  tempo = 15000,
  partenza = true,
  fuori_a_mano = { "cmdV2a", "cmdV3a" },
  velocita = { { "ME_Speed", 10 } },
}
