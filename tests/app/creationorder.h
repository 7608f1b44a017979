// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

/// The place of an object among all that were created on the heap before main(), counted from 0;
/// -1 when it is none of them.
int creationPlace(const void *object);

/// Ends the recording. To be called first in main().
void stopRecordingCreations();
