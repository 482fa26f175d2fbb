// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plc/symbol_row.h"

namespace tavorno {

/// The tables of the exercises, in the order in which they are shown.
Elenco_IO Righe_IO_00();
Elenco_IO Righe_IO_01();
Elenco_IO Righe_IO_02();
Elenco_IO Righe_IO_03();
Elenco_IO Righe_IO_04();
Elenco_IO Righe_IO_05();
Elenco_IO Righe_IO_06();
Elenco_IO Righe_IO_07();
Elenco_IO Righe_IO_08();
Elenco_IO Righe_IO_09();
Elenco_IO Righe_IO_10();
Elenco_IO Righe_IO_11();
Elenco_IO Righe_IO_12();
Elenco_IO Righe_IO_13();
Elenco_IO Righe_IO_14();
Elenco_IO Righe_IO_15();
Elenco_IO Righe_IO_16();
Elenco_IO Righe_IO_17();

}  // namespace tavorno
