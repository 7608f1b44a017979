// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

// The headers of Qt and of the standard library that most tests include, compiled in advance. Each
// test includes what it uses all the same.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QHostAddress>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QPushButton>
#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>
