-- US-04, un cilindro con valvola bistabile. Da avviare con --impianto 4.
-- Ciclo chiesto: A fuori, pausa di 1 secondo, A dentro.

usa("banco_pneumatico.lua")

prove_del_banco {
  sequenza = { { "A+" }, { "A-" } },
  pausa = true,
  finecorsa = { ["A-"] = "I0.1", ["A+"] = "I0.2" },
  fuori_a = "CmdV1a",
  emergenze = { 1, 2 },
  pistoni = { "imgPA" },
  selettore = "I0.0",
  aria = "Q0.0",
  hl1 = "Q0.3",
  hl2 = "Q0.4",
  tempo = 8000,
  velocita = { { "UpDP(0)", 9 }, { "UpDP(1)", 9 }, { "ME_Speed", 10 } },
}
