#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Tests of windows that depend on the frames of a desktop, on one that tells them late.
# Usage: frames.sh PROGRAM TESTS
source "$(dirname "$0")/screen.sh"

open_screen 1280x800
for scale in 1 1.5; do
  QT_SCALE_FACTOR=$scale "$2" --gtest_brief=1 --gtest_filter='*AtOnceWithItsFrame'
done
