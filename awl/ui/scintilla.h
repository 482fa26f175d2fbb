// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The editor component's headers are written with keywords that this program switches off.
#define signals Q_SIGNALS
#define slots Q_SLOTS
#include <Qsci/qscicommandset.h>
#include <Qsci/qscidocument.h>
#include <Qsci/qscilexercustom.h>
#include <Qsci/qsciscintilla.h>
#undef signals
#undef slots
