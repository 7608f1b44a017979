// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class Ui_aboutwindow;

/// Logo, name, version, maker and operating system.
class aboutwindow : public QDialog
{
    Q_OBJECT

public:
    explicit aboutwindow(QWidget *parent = nullptr);
    ~aboutwindow() override;
    Q_DISABLE_COPY_MOVE(aboutwindow)

    /// Sets title and text in the present language.
    void fillAboutText();
    QString operatingSystemText() const;

private:
    Ui_aboutwindow *m_ui;
};
