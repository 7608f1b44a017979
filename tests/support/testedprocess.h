// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

class QProcess;

/// For a program that is to be started by a test. A test that is killed takes it with it. It heeds
/// SIGINT, which tests in the background may have been started with as ignored, and would hand on.
void bindToTest(QProcess &process);
