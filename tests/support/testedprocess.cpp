// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testedprocess.h"

#include <QProcess>

#include <signal.h>
#include <sys/prctl.h>

void bindToTest(QProcess &process)
{
    ::signal(SIGINT, SIG_DFL);
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}
