// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

class SpeedTable;

// What is measured within one process. Each adds its lines to the table; `quick` takes fewer turns.

/// The choice of each model, against the bare filling of as many lists with as many rows.
void measurePanels(SpeedTable &table, bool quick);

/// Play from the press to the far end of the line, against a bare write of the same bytes.
void measurePlay(SpeedTable &table, bool quick);

/// The frames of all commands of all models, against the copying of their bytes.
void measureFrames(SpeedTable &table, bool quick);

/// An arrival behind others, against the editor's own showing of the same text.
void measureReceived(SpeedTable &table, bool quick);
