// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

// All colours of our own, as a table: what stands here is in no other file of the windows, and
// every other colour is the desktop's. A test computes that each text can be read on its ground
// and each line that carries a state can be seen.
namespace tavorno::colori {

/// Which of a tint's values hold.
struct Serie {
  bool Scura = false;      ///< the desktop writes light on dark
  bool Daltonici = false;  ///< states differ by more than red and green
  bool operator==(const Serie&) const = default;
};
inline constexpr Serie Carta{};  ///< of what is printed or saved

/// That of the application: its palette, and the user's choice.
Serie In_Uso();
/// The user's choice. All windows are told by an ApplicationPaletteChange.
void Per_Daltonici(bool scelti);

/// One colour on a light and on a dark desktop; those for colour-blind eyes are the same unless
/// they are named.
struct Tinta {
  QRgb Chiara;
  QRgb Scura = Chiara;
  QRgb Chiara_D = Chiara;
  QRgb Scura_D = Scura;

  constexpr QRgb Valore(Serie serie) const {
    return serie.Scura ? (serie.Daltonici ? Scura_D : Scura)
                       : (serie.Daltonici ? Chiara_D : Chiara);
  }
  QColor Di(Serie serie) const { return QColor(Valore(serie)); }
  operator QColor() const { return Di(In_Uso()); }
  bool operator==(const Tinta&) const = default;
};

/// A text and what it stands on.
struct Coppia {
  const char* Dove;
  Tinta Testo, Fondo;
};

/// A colour that is told as a number with red in the low byte.
QColor Da_Numero(unsigned numero);

/// How well one colour is seen on another, from 1 (not at all) to 21 (black on white).
double Contrasto(const QColor& uno, const QColor& altro);
inline constexpr double Leggibile = 4.5;  ///< for texts
inline constexpr double Visibile = 3;     ///< for lines and marks

/// `colore`, moved towards black or white as far as it takes on a ground that is the desktop's.
QColor Su(const QColor& colore, const QColor& fondo, double contrasto = Leggibile);

inline constexpr Tinta Nero{0x000000}, Bianco{0xffffff};
inline constexpr Tinta Foglio{0xffffff, 0x1f2327};  ///< stands for the desktop's own sheet
/// A dark desktop where its own colours do not come to us; its sheet is the one above.
inline constexpr Tinta Scrivania_Scura_Finestra{0x2a2d31}, Scrivania_Scura_Tasto{0x3a3f45};
inline constexpr Tinta Scrivania_Scura_Testo{0xe6e8ea}, Scrivania_Scura_Spento{0x9aa3b0};
inline constexpr Tinta Scrivania_Scura_Scelta{0x2f5f9e};

// ---- panel --------------------------------------------------------------------------------------

inline constexpr Coppia Tempo_Acceso{"scan time, refreshed", {0x55f06c}, {0x1e242a}};
inline constexpr Coppia Tempo_Spento{"scan time, still", {0x8c949c}, Tempo_Acceso.Fondo};
inline constexpr Coppia Pila{"logic stack", {0x000000, 0xe6ffff}, {0x80ffff, 0x0f5c60}};
inline constexpr Coppia Pila_Spenta{"logic stack, off", {0x000000, 0xffffff}, {0x808080, 0x55595e}};
inline constexpr Coppia Numero_Riga{"number of a line", {0x5d6471, 0xa9b1bd}, {0xf0f0f0, 0x2b3036}};
inline constexpr Coppia Valore_Riga{
    "value beside a line", {0x1b1f24, 0xe3e7eb}, {0xe2e7ed, 0x353c44}};
inline constexpr Coppia In_Run{"the CPU runs", Bianco, {0x1b7a33, 0x1b7a33, 0x005a9c, 0x005a9c}};
inline constexpr Coppia In_Stop{"the CPU stands", Bianco, {0x596068}};
inline constexpr Coppia Bit_Uno{
    "a bit that is 1", Bianco, {0x1f7a34, 0x1f7a34, 0x005a9c, 0x005a9c}};
inline constexpr Tinta Corrente{0x1f9d45, 0x3fc46a, 0x0072b2, 0x4aa8e8};  ///< behind a line
inline constexpr Tinta Senza_Corrente{0x868f9a, 0x7d8691};
inline constexpr Tinta Prossima_Riga{0x1f6f9e, 0x6cb8e6};                ///< mark of the next line
inline constexpr Tinta Fermata{0xc0281c, 0xff6b5e, 0xb34700, 0xff9a4d};  ///< mark of a stop
inline constexpr Tinta Nella_Fermata{0xffffff, 0x1b1e20};                ///< bar of a condition
inline constexpr Tinta Fermata_Possibile{0xe8b4ae, 0x6e3a36, 0xecc3a0, 0x6e4526};  ///< no state yet
inline constexpr Coppia Cella_Cambiata{"watched cell, changed", Nero, {0xffe98a, 0xd9c050}};
inline constexpr Coppia Cella_Forzata{"watched cell, forced", Bianco, {0xa84a12}};

// ---- window of a plant --------------------------------------------------------------------------

inline constexpr Coppia Ingressi{
    "table of inputs", {0x000000, 0xe8f5ea}, {0xcbeed2, 0x1f4a2b, 0xffe3b3, 0x5a4416}};
inline constexpr Coppia Uscite{"table of outputs", {0x000000, 0xe6f6fa}, {0xccecf2, 0x17495a}};
inline constexpr Coppia Indicata{
    "row whose part is pointed at", {0x000000, 0xfff4d0}, {0xffe08a, 0x6b5210}};
inline constexpr Coppia Guasto{"a fault that is there",
                               {0x8f1515, 0xffd0c8, 0x7a3500, 0xffd9b0},
                               {0xfde4dc, 0x6b1a16, 0xffe3c2, 0x653000}};
inline constexpr Coppia Striscia{
    "strip of the last minute", {0x2b3036, 0xdde1e6}, {0xfbfaf6, 0x1f2327}};
inline constexpr Tinta Striscia_Bit{0x1f7a34, 0x3fc46a, 0x005a9c, 0x4aa8e8};  ///< while it is 1
inline constexpr Tinta Griglia{0xddd9ce, 0x3a4047};                           ///< carries no text
/// Curves of the strip, each on a lane of its own with its name.
inline constexpr Tinta Curve[] = {
    {0x1f5fa8, 0x7db4f5}, {0xa84a12, 0xf5a06a}, {0x1b7a53, 0x62d0a0}, {0x7a3f9d, 0xcf9bee}};

/// The picture of a plant is a sheet on a wall: white on every desktop.
inline constexpr Tinta Quadro_Fondo{0xece9e2};
inline constexpr Tinta Segno_Mano{0x2f6fd0};      ///< around what the hand can reach
inline constexpr Tinta Segno_Indicata{0xb06600};  ///< around a part; carries no text

/// Our shades of the sixteen numbered colours in a picture.
inline constexpr Tinta Figure[16] = {
    {0x000000},
    {0x2b4c9b},                                // 1
    {0x1f7a3c, 0x1f7a3c, 0x00436b, 0x00436b},  // 2
    {0x008080},                                // 3
    {0xa82424, 0xa82424, 0x8a3b00, 0x8a3b00},  // 4
    {0x800080},                                // 5
    {0x808000},                                // 6
    {0xc0c0c0},                                // 7
    {0x6b6b66},                                // 8
    {0x3f7fd6},                                // 9
    {0x2e9e4f, 0x2e9e4f, 0x0086c8, 0x0086c8},  // 10
    {0x5bbfd0},                                // 11
    {0xd3302f, 0xd3302f, 0xd95f00, 0xd95f00},  // 12
    {0xff00ff},                                // 13
    {0xf2c21b},                                // 14
    {0xb9b4aa},                                // 15
};
/// The same where they write.
inline constexpr Coppia Scritta_Figura{"text in a picture", {0x3b4148}, Quadro_Fondo};
inline constexpr Coppia Scritta_Buona{
    "text in a picture, good", {0x1b6030, 0x1b6030, 0x004b7a, 0x004b7a}, Quadro_Fondo};
inline constexpr Coppia Scritta_Cattiva{
    "text in a picture, bad", {0xa81f1f, 0xa81f1f, 0x8a3b00, 0x8a3b00}, Quadro_Fondo};
inline constexpr Coppia Scritta_Spenta{"text in a picture, lesser", {0x555551}, Quadro_Fondo};

// ---- ladder -------------------------------------------------------------------------------------

inline constexpr Coppia Scala_Testo{"ladder", {0x1a1a1a, 0xe6e8ea}, Foglio};
inline constexpr Coppia Scala_Commento{"comment of a ladder", {0x4a4a4a, 0xb5bbc2}, Foglio};
inline constexpr Coppia Scala_Simbolo{"name of a plant's part", {0x1f4e79, 0x9cc6f0}, Foglio};
inline constexpr Coppia Scala_Vivo{"live wire", {0xc00000, 0xff7a6e, 0xb35000, 0xffa64d}, Foglio};
inline constexpr Coppia Scala_Valore{"number in a ladder", {0x6b2f8a, 0xd9a5f5}, Foglio};
inline constexpr Coppia Scala_Scelta{"chosen symbol", Scala_Testo.Testo, {0xd3e5f8, 0x27466a}};
inline constexpr Coppia Scala_Presente{"present line", Scala_Testo.Testo, {0xffe79c, 0x54440f}};
inline constexpr Coppia Scala_Errore{"refused operand",
                                     {0xa80014, 0xffb3b8, 0x7a3500, 0xffd9b0},
                                     {0xfdecec, 0x4a171c, 0xffe3c2, 0x4f2700}};
inline constexpr Coppia Scala_Aiuto{"help to an operand", Scala_Testo.Testo, {0xfffbe6, 0x3a3620}};
/// Inside a contact that lets power pass, and a box that works.
inline constexpr Tinta Scala_Passa{0xffc9c2, 0x6e2a24, 0xffd9b0, 0x663a00};
inline constexpr Tinta Scala_Agisce{0xffeeeb, 0x402624, 0xfff1e0, 0x43301a};
inline constexpr Tinta Scala_Cursore{0x2f6fb5, 0x6aa8ea};  ///< beside the network of the caret

// ---- texts of the editor ------------------------------------------------------------------------

namespace awl {
inline constexpr Coppia Testo{"program", {0x202428, 0xe3e6ea}, Foglio};
inline constexpr Coppia Commento{"comment", {0x4f7a4f, 0x8fc08f, 0x4f6f7a, 0x9ab8c4}, Foglio};
inline constexpr Coppia Rete{"network", {0x1d3557, 0xbfd3ef}, {0xe9eff6, 0x28384d}};
inline constexpr Coppia Costante{"constant", {0x8a1c7c, 0xe59adb}, Foglio};
inline constexpr Coppia Non_Supportata{
    "unsupported instruction", {0x7a5b00, 0xf0d080}, {0xfff3c9, 0x4a3d10}};
inline constexpr Coppia Errore{"unknown instruction",
                               {0xb00020, 0xffb3b3, 0x7a3500, 0xffd9b0},
                               {0xffe1e1, 0x5a1a22, 0xffe3c2, 0x4f2700}};
inline constexpr Coppia Numero{"number of a listed line", {0x6b7280, 0x9aa3b0}, Foglio};
inline constexpr Coppia Buona{
    "line without faults", {0x2b6e3f, 0x86d19b, 0x005a9c, 0x7db4f5}, Foglio};
inline constexpr Coppia Messaggio{"message of a fault",
                                  {0x8c0019, 0xffb3b8, 0x7a3500, 0xffd9b0},
                                  {0xfdecec, 0x4a171c, 0xfff1e0, 0x43301a}};
inline constexpr Coppia Contatti{"contacts", {0x1a4fa0, 0x8db8ff}, Foglio};
inline constexpr Coppia Bobine{"coils", {0xa63a12, 0xffab85}, Foglio};
inline constexpr Coppia Pila{"stack", {0x58448c, 0xc3b0f2}, Foglio};
inline constexpr Coppia Temporizzatori{"timers", {0x7d5700, 0xe6c070}, Foglio};
inline constexpr Coppia Contatori{"counters", {0x6f4518, 0xdcb283}, Foglio};
inline constexpr Coppia Trasferimenti{"moves", {0x00665a, 0x62d3c4}, Foglio};
inline constexpr Coppia Conversioni{"conversions", {0x2d6a2d, 0x93d293}, Foglio};
inline constexpr Coppia Confronti{"comparisons", {0x0b6487, 0x72c8ee}, Foglio};
inline constexpr Coppia Aritmetica{"arithmetic", {0x6a1b9a, 0xd7a0f5}, Foglio};
inline constexpr Coppia Logica{"logic and shifts", {0x3c4a55, 0xb8c6d1}, Foglio};
inline constexpr Coppia Programma{"flow of the program", {0x8a1550, 0xf79ac6}, Foglio};
inline constexpr Coppia Sequenze{"sequences", {0x35536e, 0xa4c4e2}, Foglio};
inline constexpr Coppia Interruzioni{"interrupts", {0x5d4037, 0xd0b3a8}, Foglio};
inline constexpr Coppia Margine{"number in the margin", {0x5d6471, 0xa9b1bd}, {0xf0f2f4, 0x2b3036}};
inline constexpr Coppia Scelta{"chosen text", {0x10161d, 0xf4f7fb}, {0xbcd4ee, 0x2f4f74}};
inline constexpr Coppia Fumetto{"hint", {0x202428, 0xe6e8ea}, {0xfffbe6, 0x3a3620}};
inline constexpr Tinta Riga{0xf4f7fb, 0x2a3038};    ///< ground of the caret's line
inline constexpr Tinta Spento{0xe4e4e4, 0x33383d};  ///< ground of a text that takes no keys
inline constexpr Tinta Punto_Errore{0xd0112b, 0xff5c70, 0xc04a00, 0xc84f00};
inline constexpr Tinta Bordo_Errore{0x8c0019, 0xffc0c8, 0x7a3500, 0xffd9b0};
inline constexpr Tinta Punto_Avvertimento{0xe8a200, 0xe8b04a};
inline constexpr Tinta Bordo_Avvertimento{0x7a5b00, 0xf0d080};
inline constexpr Tinta Suggerimento{0xb07a00, 0xe8b04a};   ///< under what is doubtful
inline constexpr Tinta Fuori_Colonna{0xd0112b, 0xff6b7d};  ///< frame of what the file cannot hold
inline constexpr Tinta Trovato{0xa86a00, 0xe8b04a};        ///< frame of what was looked for
}  // namespace awl

// ---- timing diagram -----------------------------------------------------------------------------

/// In the order of its list of what a colour stands for.
inline constexpr Tinta Tempi[] = {
    Foglio,                // ground
    {0xf7f9fb, 0x262b30},  // ground of the names
    {0xe6ebf1, 0x323940},  // ground of a group
    {0xf0f3f7, 0x2b3137},  // ground of the axis
    {0xcfe2f7, 0x1f3a57},  // selected row
    {0xe3e7ec, 0x343a41},  // between rows
    {0xd3d9e0, 0x3d444c},  // grid
    {0xd8cdea, 0x4b4264},  // scans
    {0x1b1f24, 0xe6e8ea},  // text
    {0x566070, 0xb4bdc9},  // lesser text
    {0x1f6f9e, 0x6cb8e6},
    {0xcfe4f2, 0x1d4258},  // inputs
    {0xb3541e, 0xf0955c},
    {0xf8dcc6, 0x5a341c},  // outputs
    {0x6a45a0, 0xb99cec, 0x40206a, 0x7f6ae0},
    {0xe4daf3, 0x3c3058},  // memory
    {0x147a5c, 0x4fc9a0, 0x4d4d4d, 0xd0d0c0},
    {0xcdeade, 0x184436, 0xe0e0e0, 0x3c3c38},  // timers and counters
    {0x0b6e3a, 0x5fd08a, 0x005a9c, 0x7db4f5},  // cursor A
    {0x8a1fa0, 0xdd8cf0, 0x8a3b00, 0xffa64d},  // cursor B
    {0xfff6d6, 0x3a3520},                      // between the cursors
    {0xc0281c, 0xff7a6c},                      // trigger
    {0x8a5a00, 0xe0b050},                      // found
    {0xeceef1, 0x2c3034},                      // not recorded
    {0xffffff, 0x14181c},                      // on a cursor's flag
};
inline constexpr Coppia Tempi_Nomi{"diagram, names", Tempi[8], Tempi[1]};
inline constexpr Coppia Tempi_Scelta{"diagram, selected row", Tempi[9], Tempi[4]};
inline constexpr Coppia Tempi_Asse{"diagram, axis", Tempi[9], Tempi[3]};
inline constexpr Coppia Tempi_Gruppo{"diagram, group", Tempi[8], Tempi[2]};
inline constexpr Coppia Tempi_A{"diagram, cursor A", Tempi[24], Tempi[18]};
inline constexpr Coppia Tempi_B{"diagram, cursor B", Tempi[24], Tempi[19]};
inline constexpr Coppia Tempi_Valore_A{"diagram, value at A", Tempi[18], Tempi[4]};
inline constexpr Coppia Tempi_Valore_B{"diagram, value at B", Tempi[19], Tempi[4]};
inline constexpr Coppia Tempi_Segno{"diagram, trigger", Tempi[24], Tempi[21]};
inline constexpr Coppia Tempi_Trovato{"diagram, found", Tempi[24], Tempi[22]};

// ---- help and boxes -----------------------------------------------------------------------------

inline constexpr Coppia Guida_Legame{"link of a notice", {0x1a5fa0, 0x8db8ff}, Foglio};
inline constexpr Coppia Guida_Titolo{"title of a notice", {0x16456f, 0x9cc6f0}, Foglio};
inline constexpr Coppia Guida_Dove{"place of a found word", {0x5f666e, 0xa9b1bd}, Foglio};
inline constexpr Coppia Guida_Trovata{"a found word", {0x202326, 0xfff4d0}, {0xffe08a, 0x6b5210}};
/// The style sheet of the help has the light values.
inline constexpr Coppia Guida_Stile[] = {
    {"help, text", {0x202428, 0xe3e6ea}, Foglio},
    {"help, headings", {0x16456f, 0x9cc6f0}, Foglio},
    {"help, links", {0x1a5fa0, 0x8db8ff}, Foglio},
    {"help, lesser text", {0x606870, 0xa9b1bd}, Foglio},
    {"help, operands", {0x404850, 0xc0c8d0}, Foglio},
    {"help, heads of tables", {0x202428, 0xe3e6ea}, {0xe3ebf3, 0x323940}},
    {"help, inputs", {0x202428, 0xe3e6ea}, {0xd8f5d8, 0x1f4a2b, 0xffe3b3, 0x5a4416}},
    {"help, outputs", {0x202428, 0xe3e6ea}, {0xd6f3f7, 0x17495a}},
    {"help, programs", {0x202428, 0xe3e6ea}, {0xf4f4ee, 0x2b3036}},
    {"help, remarks", {0x202428, 0xe3e6ea}, {0xfff6d6, 0x54440f}},
    {"help, frames of tables", Nero, {0xb8c0c8, 0x8b939b}},
};
inline constexpr Tinta Guida_Immagine{0x858b92, 0x8b9299};  ///< frame of a refused picture
inline constexpr Coppia Nome_Programma{"the program's name", {0x1d4f73, 0x9cc6f0}, Foglio};
/// Its shadow, which is not read.
inline constexpr Coppia Nome_Ombra{"shadow of the name", {0xa9b4bd, 0x4b5a66}, Foglio};

// ---- what is drawn as a thing, in the light of its own room -------------------------------------

/// Told colours of the captions at the front of the CPU.
inline constexpr Tinta Scritta_Led{0xffff00}, Scritta_Simulatore{0x0000ff};
inline constexpr Coppia Led{"caption of a row of LEDs", Scritta_Led, {0x2b3036}};
inline constexpr Tinta Led_Bordo{0x15181b};
inline constexpr Tinta Led_Verde{0x2fc24b}, Led_Giallo{0xf5c518}, Led_Rosso{0xe53935};
inline constexpr Tinta Parete{0xeceae4, 0x2a2d31};
/// Stripes of the rail from above: upper and lower edge.
inline constexpr Tinta Rotaia[][2] = {{{0xe6e8ea}, {0xbec0c2}}, {{0x86888a}, {0x989a9c}},
                                      {{0xc2c4c6}, {0xb2b4b6}}, {{0xd8dadc}, {0xe2e4e6}},
                                      {{0xcfd1d3}, {0xa6a8aa}}, {{0xc4c6c8}, {0xe6e8ea}}};
inline constexpr Tinta Tacca{0xe8eaea}, Metallo_Chiaro{0xfbfbfa}, Metallo_Scuro{0x878e95};
inline constexpr Tinta Plastica_Scura{0xa9afb5}, Indice{0x2b3036};
inline constexpr Coppia Cifra_Ruota{"digit of a thumbwheel", {0x15181b}, {0xf4f2ec}};
inline constexpr Tinta Fuoco_Alone{0xffffff}, Fuoco{0x2f6fb3};  ///< around what has the keyboard
inline constexpr Coppia Ruota{"sample of a thumbwheel", Bianco, {0x3a4046}};
inline constexpr Tinta Ruota_Bordo{0x495057}, Ruota_Cassa{0xadb5bd}, Ruota_Fondo{0x0b0d0f};

}  // namespace tavorno::colori
