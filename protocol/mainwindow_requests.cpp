// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/mainwindow.h"

void MainWindow::on_pushButton_Request_clicked() {}

void MainWindow::on_pushButton_Other_Command_clicked() {}

void MainWindow::on_pushButton_Launch_Playback_clicked() {}

void MainWindow::on_pushButton_Relay_Command_clicked() {}

void MainWindow::on_pushButton_Subtitles_On_clicked() {}

void MainWindow::on_pushButton_Subtitles_Off_clicked() {}

void MainWindow::on_pushButton_Subtitles_Previous_clicked() {}

void MainWindow::on_pushButton_Subtitles_Next_clicked() {}

void MainWindow::on_pushButton_Subtitles_Previous_Loop_clicked() {}

void MainWindow::on_pushButton_Subtitles_Next_Loop_clicked() {}

void MainWindow::on_pushButton_Subtitles_Select_clicked() {}
