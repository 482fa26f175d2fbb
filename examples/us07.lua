-- US-07, quattro cilindri con valvole bistabili. Da avviare con --impianto 7.
-- SB1 ciclo automatico, SB2 ciclo singolo, SB3 fine del ciclo automatico, SB4 ripristino, SB5
-- emergenza, SA aria.

usa("banco_pneumatico.lua")

-- La sequenza chiesta si cambia qui: una riga per passo, i movimenti di un passo vanno insieme.
prove_del_banco {
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
  fuori_a = "CmdV1a",
  fuori_a_mano = { "cmdV2a", "cmdV3a", "cmdV4a" },
  emergenze = { 3, 5 },
  insieme = {
    { passo = 3, contro = "cmdV3b", avanti = "cmdV3a" },
    { passo = 3, contro = "cmdV4b", avanti = "cmdV4a" },
    { passo = 4, contro = "cmdV3a", avanti = "cmdV3b" },
    { passo = 4, contro = "cmdV4a", avanti = "cmdV4b" },
  },
  pistoni = { "imgV1", "imgV2", "imgV3", "imgV4" },
  selettore = "I1.5",
  hl1 = "Q1.1",
  hl2 = "Q1.2",
  lampade = { a_riposo = "Q1.3" },
  nome_a_riposo = "HL3",
  tempo = 30000,
  velocita = { { "ME_Speed", 10 } },
}
