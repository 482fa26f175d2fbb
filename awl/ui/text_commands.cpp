// SPDX-License-Identifier: GPL-3.0-or-later
#include "awl/ui/text_commands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "awl/line_numbers.h"
#include "awl/line_words.h"
#include "awl/navigation.h"
#include "awl/patterns.h"
#include "awl/project.h"
#include "awl/rename.h"
#include "awl/ui/awl_editor.h"
#include "awl/ui/find_bar.h"
#include "awl/ui/row_bar.h"
#include "awl/ui/uses_list.h"
#include "plc/codepage.h"
#include "widgets/naming.h"
#include "widgets/text.h"

namespace tavorno {

Comandi_Testi::Comandi_Testi(QMainWindow& finestra, Azioni_Testi& azioni, Testi_In_Vista vista,
                             QVBoxLayout& sotto)
    : QObject(&finestra),
      azioni_(azioni),
      vista_(std::move(vista)),
      ricerca_(new Barra_Ricerca([this] { return &Davanti(); }, &finestra)),
      riga_(new Barra_Riga([this](int numero) { Vai_A_Riga(numero); }, &finestra)),
      usi_(
          new Elenco_Usi({.Vai = [this](Posto_Riga posto) { Salta(posto); },
                          .Rinomina = [this](const std::string& nuovo) { return Dai_Nome(nuovo); }},
                         &finestra)) {
  sotto.addWidget(ricerca_);
  sotto.addWidget(riga_);
  Collega_Cerca();
  Collega_Vai();
  Collega_Righe();
  Riempi_Schemi(finestra);
}

void Comandi_Testi::Collega_Cerca() {
  const auto al = [this](QAction* voce, auto comando) {
    connect(voce, &QAction::triggered, this, comando);
  };
  al(azioni_.mnuCercaTrova, [this] { ricerca_->Apri(false); });
  al(azioni_.mnuCercaSost, [this] { ricerca_->Apri(true); });
  al(azioni_.mnuCercaSucc, [this] { ricerca_->Vai(1); });
  al(azioni_.mnuCercaPrec, [this] { ricerca_->Vai(-1); });
  al(azioni_.mnuCercaUsi, [this] { Mostra_Usi(false); });
}

void Comandi_Testi::Collega_Vai() {
  const auto al = [this](QAction* voce, auto comando) {
    connect(voce, &QAction::triggered, this, comando);
  };
  al(azioni_.mnuVaiRiga, [this] { riga_->Apri(Numerazione(vista_.Dati).Righe() - 1); });
  al(azioni_.mnuVaiErrSucc, [this] { vista_.Errore(1); });
  al(azioni_.mnuVaiErrPrec, [this] { vista_.Errore(-1); });
  al(azioni_.mnuVaiNetSucc, [this] { Segmento(Segmento_Dopo); });
  al(azioni_.mnuVaiNetPrec, [this] { Segmento(Segmento_Prima); });
  al(azioni_.mnuVaiMeta, [this] {
    if (!Scrivibile()) return;
    if (const auto meta = Meta(Testi(), {Numero(), Davanti().Cursore().Linea})) Salta(*meta);
  });
  al(azioni_.mnuVaiIndietro, [this] { Indietro(); });
}

void Comandi_Testi::Collega_Righe() {
  const auto al = [this](QAction* voce, auto comando) {
    connect(voce, &QAction::triggered, this, comando);
  };
  al(azioni_.mnuRigheCom, [this] { Cambia_Linee(Commenta); });
  al(azioni_.mnuRigheSu, [this] {
    Cambia_Linee([](std::string_view testo, int da, int a) { return Sposta(testo, da, a, -1); });
  });
  al(azioni_.mnuRigheGiu, [this] {
    Cambia_Linee([](std::string_view testo, int da, int a) { return Sposta(testo, da, a, 1); });
  });
  al(azioni_.mnuRigheDoppia, [this] { Cambia_Linee(Raddoppia); });
  al(azioni_.mnuRigheNome, [this] { Mostra_Usi(true); });
}

void Comandi_Testi::Riempi_Schemi(QMainWindow& finestra) {
  QMenu* menu = azioni_.mnuSchemi->menu();
  menu->addSeparator();
  int indice = 0;
  for (const Schema& schema : Tabella_Schemi()) {
    QAction* voce =
        Chiama(Con_Indice("mnuSchema", indice++), menu->addAction(QString::fromUtf8(schema.Voce)));
    voce->setToolTip(QString::fromUtf8(schema.Aiuto));
    const Schema* quale = &schema;  // of a table that outlives all windows
    connect(voce, &QAction::triggered, this, [this, quale] {
      Cambia_Linee([this, quale](std::string_view testo, int, int a) {
        return Metti_Schema(*quale, testo, a, Riferimenti(Testi()));
      });
    });
  }
  connect(azioni_.mnuSchemiQui, &QAction::triggered, &finestra, [this] { Mostra_Schemi(); });
}

// ---- which text ---------------------------------------------------------------------------------

AwlEditor& Comandi_Testi::Davanti() const {
  AwlEditor* const testi[] = {vista_.Main, vista_.Procedura, vista_.Listato};
  return *testi[std::clamp(vista_.Dati.Pagina, 0, 2)];
}

int Comandi_Testi::Numero() const {
  return vista_.Dati.Pagina == 1 ? vista_.Dati.Scheda : 0;
}

bool Comandi_Testi::Scrivibile() const {
  return !Davanti().isReadOnly();
}

Sorgente Comandi_Testi::Testi() const {
  return vista_.Dati.Come_Sorgente(vista_.Dati.txtList);
}

void Comandi_Testi::Aggiorna() {
  ricerca_->Aggiorna();
}

void Comandi_Testi::Usa_Simboli(const Simboli& simboli) {
  simboli_ = simboli;
}

// ---- lines --------------------------------------------------------------------------------------

void Comandi_Testi::Cambia_Linee(
    const std::function<Cambio_Linee(std::string_view, int, int)>& come) {
  if (!Scrivibile()) return;
  AwlEditor& testo = Davanti();
  const auto [da, a] = testo.Linee_Scelte();
  testo.Cambia(come(testo.Byte(), da, a));
  testo.setFocus(Qt::OtherFocusReason);
}

void Comandi_Testi::Mostra_Schemi() {
  AwlEditor& testo = Davanti();
  if (!Scrivibile()) return;
  const long posto = testo.SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
  const auto x = testo.SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0L, posto);
  const auto y = testo.SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0L, posto);
  azioni_.mnuSchemi->menu()->popup(
      testo.viewport()->mapToGlobal(QPoint(static_cast<int>(x), static_cast<int>(y))));
}

// ---- from place to place ------------------------------------------------------------------------

void Comandi_Testi::Segmento(int (*cerca)(std::string_view, int)) {
  AwlEditor& testo = Davanti();
  const int linea = cerca(testo.Byte(), testo.Cursore().Linea);
  if (linea >= 0) testo.Vai_A(linea);
}

/// Goes there, and remembers where from.
void Comandi_Testi::Salta(Posto_Riga meta) {
  if (vista_.Dati.Pagina < 2) salti_.push_back({Numero(), Davanti().Cursore().Linea});
  vista_.Mostra(meta);
}

void Comandi_Testi::Indietro() {
  while (!salti_.empty()) {
    const Posto_Riga da = salti_.back();
    salti_.pop_back();
    if (da.Testo > vista_.Dati.Num_SBR) continue;  // that procedure was removed meanwhile
    return vista_.Mostra(da);
  }
}

void Comandi_Testi::Vai_A_Riga(int numero) {
  if (const auto posto = Numerazione(vista_.Dati).Posto(numero)) Salta(*posto);
}

// ---- names --------------------------------------------------------------------------------------

void Comandi_Testi::Mostra_Usi(bool con_nome) {
  if (vista_.Dati.Pagina > 1) return;
  const AwlEditor& testo = Davanti();
  const AwlEditor::Punto qui = testo.Cursore();
  const std::string byte = testo.Byte();
  const auto nominato = Nominato_In(Linee(byte)[static_cast<std::size_t>(qui.Linea)], qui.Colonna);
  if (!nominato) return;
  nominato_ = *nominato;
  Riempi_Usi();
  if (con_nome) usi_->Chiedi_Nome();
}

void Comandi_Testi::Riempi_Usi() {
  const Numerazione numerazione(vista_.Dati);
  std::vector<Elenco_Usi::Uso_Mostrato> usi;
  for (const Riferimento& uso : Usi_Di(Testi(), nominato_)) {
    const std::vector<int>& numeri = numerazione.Numeri(uso.Posto.Testo);
    const int riga = numeri[static_cast<std::size_t>(uso.Posto.Linea)];
    const QString testo = uso.Posto.Testo == 0 ? QStringLiteral("Main")
                                               : Da_Byte(vista_.Dati.Tab_SBR[uso.Posto.Testo].Nome);
    usi.push_back({uso, riga == Numerazione::Nessuno
                            ? testo
                            : QStringLiteral("%1, riga %2").arg(testo).arg(riga)});
  }
  const auto simbolo = simboli_.find(nominato_.Nome);
  usi_->Mostra(nominato_, simbolo == simboli_.end() ? QString() : Q(simbolo->second.Intero()), usi);
}

std::string Comandi_Testi::Dai_Nome(const std::string& nuovo) {
  const Cambio_Nome cambio = Rinomina(Testi(), nominato_, Da_Utf8(nuovo));
  if (!cambio.Errore.empty()) return cambio.Errore;
  const bool procedura = nominato_.Genere == Genere_Nome::Procedura;
  const std::string nome = procedura ? Maiuscole(cambio.Nome) : cambio.Nome;
  if (nome == nominato_.Nome && !procedura) return {};
  Scrivi_Nome(cambio);
  nominato_.Nome = nome;
  Riempi_Usi();
  usi_->Chiedi_Nome();
  std::string detto = "Righe cambiate: " + std::to_string(cambio.Ritocchi.size()) + ".";
  if (cambio.Gia_Usato > 0)
    detto += " " + A_Utf8(nome) + " c'era già: ora i due sono la stessa cosa. Annulla li separa.";
  if (cambio.Di_Gruppo > 0)
    detto += " Restano come sono le righe che lo toccano insieme ad altri: " +
             std::to_string(cambio.Di_Gruppo) + ".";
  return detto;
}

/// What changes the text in front only is a step of that text.
void Comandi_Testi::Scrivi_Nome(const Cambio_Nome& cambio) {
  const auto& ritocchi = cambio.Ritocchi;
  const bool solo_qui = cambio.Procedura == 0 && vista_.Dati.Pagina < 2 && Scrivibile() &&
                        std::ranges::all_of(ritocchi, [this](const Ritocco& uno) {
                          return uno.Posto.Testo == Numero();
                        });
  if (solo_qui) return Davanti().Ritocca(ritocchi);
  const Posto_Riga qui{Numero(), Davanti().Cursore().Linea};
  vista_.Insieme([&] {
    Progetto& dati = vista_.Dati;
    for (int riga = 1; riga <= dati.Num_SBR; ++riga)
      dati.Tab_SBR[riga].Testo = Con_Ritocchi(dati.Tab_SBR[riga].Testo, riga, ritocchi);
    if (cambio.Procedura > 0) {
      dati.Tab_SBR[cambio.Procedura].Nome = cambio.Nome;
      dati.TabSP[static_cast<std::size_t>(cambio.Procedura - 1)] = cambio.Nome;
    }
    dati.Scegli_Procedura(dati.Scheda);
    dati.Scrivi_Main(Con_Ritocchi(dati.txtList, 0, ritocchi));
  });
  if (vista_.Dati.Pagina < 2) vista_.Mostra(qui);
}

}  // namespace tavorno
