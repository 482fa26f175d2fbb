// SPDX-License-Identifier: GPL-3.0-or-later
#include "manual/manual.h"

#include <algorithm>
#include <string_view>

#include "plants/exercises.h"

namespace tavorno {

namespace {

constexpr std::size_t rientro_testo = 6;
constexpr std::size_t rientro_opzione = 25;

/// `testo` with the numbers of the exercises in it.
std::string Con_Numeri(std::string_view testo) {
  static constexpr std::string_view segno = "{esercizi}";
  std::string risultato(testo);
  for (std::size_t i = risultato.find(segno); i != std::string::npos; i = risultato.find(segno, i))
    risultato.replace(i, segno.size(), "0.." + std::to_string(Tabella_Esercizi().size() - 1));
  return risultato;
}

/// Every line of `testo` behind `rientro` blanks, but for the first one.
std::string Rientrato(const char* testo, std::size_t rientro) {
  std::string risultato;
  for (const char c : Con_Numeri(testo)) {
    risultato += c;
    if (c == '\n') risultato.append(rientro, ' ');
  }
  return risultato;
}

std::size_t Caratteri(std::string_view utf8) {
  return static_cast<std::size_t>(std::ranges::count_if(
      utf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

void Scrivi_Uso(std::string& testo, const Comando_Manuale& comando) {
  testo += std::string("  ") + comando.Uso.Italiano + '\n';
  testo.append(rientro_testo, ' ');
  testo += Rientrato(comando.Testo.Italiano, rientro_testo) + '\n';
  for (const Opzione_Manuale& opzione : comando.Opzioni) {
    testo.append(rientro_testo, ' ');
    testo += opzione.Nome.Italiano;
    const std::size_t colonna = rientro_testo + Caratteri(opzione.Nome.Italiano);
    testo.append(colonna < rientro_opzione ? rientro_opzione - colonna : 1, ' ');
    testo += Rientrato(opzione.Testo.Italiano, rientro_opzione) + '\n';
  }
}

// ---- pages for man(7) ------------------------------------------------------------------------

/// `testo` with what man(7) would take for a command made plain. Every "-" is one that may be
/// typed, so that it can be copied out of the page.
std::string Protetto(std::string_view scritto) {
  const std::string testo = Con_Numeri(scritto);
  std::string risultato;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const bool inizio = i == 0 || testo[i - 1] == '\n';
    if (inizio && (testo[i] == '.' || testo[i] == '\'')) risultato += "\\&";
    if (inizio && testo[i] == '"' && i > 0) risultato += ".br\n";
    if (testo[i] == '\\')
      risultato += "\\e";
    else if (testo[i] == '-')
      risultato += "\\-";
    else
      risultato += testo[i];
  }
  return risultato;
}

/// Text with its paragraphs.
std::string Paragrafi(const char* testo) {
  std::string risultato = Protetto(testo);
  for (std::size_t i = risultato.find("\n\n"); i != std::string::npos;
       i = risultato.find("\n\n", i + 1))
    risultato.replace(i, 2, "\n.PP\n");
  return risultato + '\n';
}

void Titolo(std::string& pagina, const Testo_Manuale& titolo, Lingua lingua) {
  pagina += std::string(".SH ") + titolo.In(lingua) + '\n';
}

void Voci(std::string& pagina, std::span<const Opzione_Manuale> voci, Lingua lingua) {
  for (const Opzione_Manuale& voce : voci)
    pagina += ".TP\n.B " + Protetto(voce.Nome.In(lingua)) + '\n' + Paragrafi(voce.Testo.In(lingua));
}

void Sintassi(std::string& pagina, const Manuale& manuale, Lingua lingua) {
  for (const Comando_Manuale& comando : manuale.Comandi) {
    if (!comando.Rimando) pagina += ".B " + Protetto(comando.Uso.In(lingua)) + "\n.br\n";
  }
}

void Capitoli_Comandi(std::string& pagina, const Manuale& manuale, Lingua lingua) {
  for (const Comando_Manuale& comando : manuale.Comandi) {
    if (comando.Rimando) continue;
    pagina +=
        ".SS " + Protetto(comando.Uso.In(lingua)) + '\n' + Paragrafi(comando.Testo.In(lingua));
    Voci(pagina, comando.Opzioni, lingua);
  }
}

std::string In_Capitali(std::string nome) {
  std::ranges::transform(nome, nome.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return nome;
}

}  // namespace

std::string Aiuto_Uso(const Manuale& manuale) {
  std::string testo = std::string(manuale.Nome) + ": " + manuale.Riassunto.Italiano + ".\n\nUso:\n";
  for (const Comando_Manuale& comando : manuale.Comandi) {
    if (&comando != manuale.Comandi.data()) testo += '\n';
    Scrivi_Uso(testo, comando);
  }
  return testo;
}

std::string Aiuto_Stati(const Manuale& manuale) {
  return std::string("\nStato di uscita: ") + manuale.Stati.Italiano + "\n";
}

std::string Aiuto(const Manuale& manuale) {
  return Aiuto_Uso(manuale) + Aiuto_Stati(manuale);
}

std::string Pagina_Man(const Manuale& manuale, std::span<const Manuale> parti,
                       std::span<const Capitolo> capitoli, const char* vedi_anche, Lingua lingua,
                       const Edizione& edizione) {
  std::string pagina = ".\\\" SPDX-License-Identifier: GPL-3.0-or-later\n";
  pagina += ".TH " + Protetto(In_Capitali(manuale.Nome)) + " 1 " + edizione.Giorno + " \"Tavorno " +
            edizione.Versione + "\" \"" +
            Testo_Manuale{"Manuale utente", "User Commands"}.In(lingua) + "\"\n";
  Titolo(pagina, {"NOME", "NAME"}, lingua);
  pagina += Protetto(manuale.Nome) + " \\- " + Protetto(manuale.Riassunto.In(lingua)) + '\n';
  Titolo(pagina, {"SINTASSI", "SYNOPSIS"}, lingua);
  Sintassi(pagina, manuale, lingua);
  for (const Manuale& parte : parti) Sintassi(pagina, parte, lingua);
  Titolo(pagina, {"DESCRIZIONE", "DESCRIPTION"}, lingua);
  pagina += Paragrafi(manuale.Descrizione.In(lingua));
  Titolo(pagina, {"COMANDI", "COMMANDS"}, lingua);
  Capitoli_Comandi(pagina, manuale, lingua);
  for (const Manuale& parte : parti) Capitoli_Comandi(pagina, parte, lingua);
  for (const Capitolo& capitolo : capitoli) {
    Titolo(pagina, capitolo.Titolo, lingua);
    pagina += Paragrafi(capitolo.Testo.In(lingua));
    Voci(pagina, capitolo.Voci, lingua);
  }
  Titolo(pagina, {"STATO DI USCITA", "EXIT STATUS"}, lingua);
  pagina += Paragrafi(manuale.Stati.In(lingua));
  for (const Manuale& parte : parti)
    pagina += ".PP\n.B " + Protetto(parte.Nome) + ":\n" + Paragrafi(parte.Stati.In(lingua));
  if (!manuale.File.empty()) {
    Titolo(pagina, {"FILE", "FILES"}, lingua);
    Voci(pagina, manuale.File, lingua);
  }
  Titolo(pagina, {"VEDERE ANCHE", "SEE ALSO"}, lingua);
  return pagina + vedi_anche + '\n';
}

}  // namespace tavorno
