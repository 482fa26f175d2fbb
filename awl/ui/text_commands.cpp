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

namespace {

constexpr int Di_Nessuno = -1;  // a text that no procedure owns

/// Why a line leads nowhere.
QString Senza_Meta(std::string_view linea) {
  const auto nominato = Nominato_In(linea, 0);
  if (!nominato || nominato->Genere == Genere_Nome::Operando)
    return QStringLiteral("Destinazione parte da una riga CALL, JMP o LBL del programma.");
  const QString nome = Da_Byte(nominato->Nome);
  if (nominato->Genere == Genere_Nome::Procedura)
    return QStringLiteral("La procedura %1 non c'è.").arg(nome);
  return Istruzione_Di(linea)->Nel_Programma == Compito::Etichetta
             ? QStringLiteral("Nessun JMP porta a LBL %1.").arg(nome)
             : QStringLiteral("LBL %1 non c'è.").arg(nome);
}

/// Why the place of the caret names nothing.
QString Senza_Nome(std::string_view linea) {
  Sorgente sola;
  sola.Main = linea;
  return Riferimenti(sola).size() > 1
             ? QStringLiteral("La riga ha più operandi: mettere il cursore su quello da cercare.")
             : QStringLiteral("Qui non c'è un operando, un'etichetta o una procedura da cercare.");
}

}  // namespace

Comandi_Testi::Comandi_Testi(QMainWindow& finestra, Azioni_Testi& azioni, Testi_In_Vista vista,
                             QVBoxLayout& sotto)
    : QObject(&finestra),
      azioni_(azioni),
      vista_(std::move(vista)),
      ricerca_(new Barra_Ricerca([this] { return &Davanti(); }, &finestra)),
      riga_(new Barra_Riga({.Vai = [this](int numero) { Vai_A_Riga(numero); },
                            .Chiusa = [this] { Davanti().setFocus(Qt::OtherFocusReason); }},
                           &finestra)),
      usi_(
          new Elenco_Usi({.Vai = [this](Posto_Riga posto) { Salta(posto); },
                          .Rinomina = [this](const std::string& nuovo) { return Dai_Nome(nuovo); }},
                         &finestra)) {
  sotto.addWidget(ricerca_);
  sotto.addWidget(riga_);
  for (AwlEditor* testo : {vista_.Main, vista_.Procedura, vista_.Listato})
    testo->Congeda = [this] { ricerca_->Chiudi(); };
  Collega_Cerca();
  Collega_Vai();
  Collega_Righe();
  Riempi_Schemi(finestra);
}

/// What a command before has said is over.
void Comandi_Testi::Lega(QAction* voce, const std::function<void()>& comando) {
  connect(voce, &QAction::triggered, this, [this, comando] {
    vista_.Dici({});
    Davanti().Chiudi_Aiuti();
    comando();
  });
}

void Comandi_Testi::Collega_Cerca() {
  const auto al = [this](QAction* voce, auto comando) { Lega(voce, comando); };
  al(azioni_.mnuCercaTrova, [this] { ricerca_->Apri(false); });
  al(azioni_.mnuCercaSost, [this] { ricerca_->Apri(true); });
  al(azioni_.mnuCercaSucc, [this] { ricerca_->Vai(1); });
  al(azioni_.mnuCercaPrec, [this] { ricerca_->Vai(-1); });
  al(azioni_.mnuCercaUsi, [this] { Mostra_Usi(false); });
}

void Comandi_Testi::Collega_Vai() {
  const auto al = [this](QAction* voce, auto comando) { Lega(voce, comando); };
  al(azioni_.mnuVaiRiga, [this] { riga_->Apri(Numerazione(vista_.Dati).Righe() - 1); });
  const auto errore = [this](int verso) {
    if (!vista_.Errore(verso))
      vista_.Dici(QStringLiteral("Nessuna riga è segnata: gli errori li segna la compilazione."));
  };
  al(azioni_.mnuVaiErrSucc, [errore] { errore(1); });
  al(azioni_.mnuVaiErrPrec, [errore] { errore(-1); });
  al(azioni_.mnuVaiNetSucc,
     [this] { Segmento(Segmento_Dopo, "Nessun segmento dopo questa riga."); });
  al(azioni_.mnuVaiNetPrec,
     [this] { Segmento(Segmento_Prima, "Nessun segmento prima di questa riga."); });
  al(azioni_.mnuVaiMeta, [this] { Alla_Meta(); });
  al(azioni_.mnuVaiIndietro, [this] { Indietro(); });
}

void Comandi_Testi::Collega_Righe() {
  const auto al = [this](QAction* voce, auto comando) { Lega(voce, comando); };
  al(azioni_.mnuRigheCom, [this] { Cambia_Linee(Commenta); });
  al(azioni_.mnuRigheSu, [this] {
    Cambia_Linee([](std::string_view testo, int da, int a) { return Sposta(testo, da, a, -1); });
  });
  al(azioni_.mnuRigheGiu, [this] {
    Cambia_Linee([](std::string_view testo, int da, int a) { return Sposta(testo, da, a, 1); });
  });
  al(azioni_.mnuRigheDoppia, [this] { Cambia_Linee(Raddoppia); });
  al(azioni_.mnuRigheNome, [this] { Mostra_Usi(true); });
  al(azioni_.mnuRigheNote, [this] {
    const bool annota = azioni_.mnuRigheNote->isChecked();
    for (AwlEditor* testo : {vista_.Main, vista_.Procedura}) testo->Annota_Simboli(annota);
    if (annota && simboli_.empty())
      vista_.Dici(QStringLiteral("I nomi ci sono con un esercizio aperto (Simulatori Processi)."));
  });
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
    Lega(voce, [this, quale] {
      Cambia_Linee([this, quale](std::string_view testo, int, int a) {
        return Metti_Schema(*quale, testo, a, Riferimenti(Testi()));
      });
    });
  }
  connect(azioni_.mnuSchemiQui, &QAction::triggered, &finestra, [this] {
    vista_.Dici({});
    Mostra_Schemi();
  });
}

// ---- which text ---------------------------------------------------------------------------------

AwlEditor& Comandi_Testi::Davanti() const {
  AwlEditor* const testi[] = {vista_.Main, vista_.Procedura, vista_.Listato};
  return *testi[std::clamp(vista_.Dati.Pagina, 0, 2)];
}

int Comandi_Testi::Numero() const {
  if (vista_.Dati.Pagina != 1) return 0;
  const int scheda = vista_.Dati.Scheda;
  return scheda >= 1 && scheda <= vista_.Dati.Num_SBR ? scheda : Di_Nessuno;
}

bool Comandi_Testi::Scrivibile() const {
  return !Davanti().isReadOnly();
}

bool Comandi_Testi::Si_Scrive() const {
  if (!Scrivibile()) vista_.Dici(QStringLiteral("Questo testo si può soltanto leggere."));
  return Scrivibile();
}

Sorgente Comandi_Testi::Testi() const {
  return vista_.Dati.Come_Sorgente(vista_.Dati.txtList);
}

void Comandi_Testi::Aggiorna() {
  vista_.Dici({});
  ricerca_->Aggiorna();
}

void Comandi_Testi::Usa_Simboli(const Simboli& simboli) {
  simboli_ = simboli;
}

// ---- lines --------------------------------------------------------------------------------------

void Comandi_Testi::Cambia_Linee(
    const std::function<Cambio_Linee(std::string_view, int, int)>& come) {
  if (!Si_Scrive()) return;
  AwlEditor& testo = Davanti();
  const auto [da, a] = testo.Linee_Scelte();
  testo.Cambia(come(testo.Byte(), da, a));
  testo.setFocus(Qt::OtherFocusReason);
}

void Comandi_Testi::Mostra_Schemi() {
  AwlEditor& testo = Davanti();
  if (!Si_Scrive()) return;
  const long posto = testo.SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
  const auto x = testo.SendScintilla(QsciScintilla::SCI_POINTXFROMPOSITION, 0L, posto);
  const auto y = testo.SendScintilla(QsciScintilla::SCI_POINTYFROMPOSITION, 0L, posto);
  QMenu* menu = azioni_.mnuSchemi->menu();
  menu->popup(testo.viewport()->mapToGlobal(QPoint(static_cast<int>(x), static_cast<int>(y))));
  menu->setActiveAction(menu->actions().at(2));  // behind the entry that led here and its line
}

// ---- from place to place ------------------------------------------------------------------------

void Comandi_Testi::Segmento(int (*cerca)(std::string_view, int), const char* nessuno) {
  AwlEditor& testo = Davanti();
  const int linea = cerca(testo.Byte(), testo.Cursore().Linea);
  linea >= 0 ? testo.Vai_A(linea) : vista_.Dici(QString::fromUtf8(nessuno));
}

void Comandi_Testi::Alla_Meta() {
  const int linea = Davanti().Cursore().Linea;
  const std::string byte = Davanti().Byte();
  const bool del_programma = Scrivibile() && Numero() != Di_Nessuno;
  const auto meta = del_programma ? Meta(Testi(), {Numero(), linea}) : std::nullopt;
  meta ? Salta(*meta)
       : vista_.Dici(Senza_Meta(del_programma ? Linee(byte)[static_cast<std::size_t>(linea)]
                                              : std::string_view()));
}

/// Goes there, and remembers where from.
void Comandi_Testi::Salta(Posto_Riga meta) {
  if (vista_.Dati.Pagina < 2 && Numero() != Di_Nessuno)
    salti_.push_back({Numero(), Davanti().Cursore().Linea});
  vista_.Mostra(meta);
}

void Comandi_Testi::Indietro() {
  while (!salti_.empty()) {
    const Posto_Riga da = salti_.back();
    salti_.pop_back();
    if (da.Testo > vista_.Dati.Num_SBR) continue;  // that procedure was removed meanwhile
    return vista_.Mostra(da);
  }
  vista_.Dici(QStringLiteral("Nessun salto da cui tornare."));
}

void Comandi_Testi::Vai_A_Riga(int numero) {
  if (const auto posto = Numerazione(vista_.Dati).Posto(numero)) Salta(*posto);
}

// ---- names --------------------------------------------------------------------------------------

void Comandi_Testi::Mostra_Usi(bool con_nome) {
  if (vista_.Dati.Pagina > 1)
    return vista_.Dici(
        QStringLiteral("Il listato non ha nomi da cercare: il comando vale nei testi."));
  const AwlEditor& testo = Davanti();
  const AwlEditor::Punto qui = testo.Cursore();
  const std::string byte = testo.Byte();
  const std::string_view linea = Linee(byte)[static_cast<std::size_t>(qui.Linea)];
  const auto nominato = Nominato_In(linea, qui.Colonna);
  if (!nominato) return vista_.Dici(Senza_Nome(linea));
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
  if (vista_.Dati.Pagina < 2 && qui.Testo != Di_Nessuno) vista_.Mostra(qui);
}

}  // namespace tavorno
