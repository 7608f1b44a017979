// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "windowstate.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;

QList<QWidget *> namedWidgets(const QMainWindow &window)
{
    QList<QWidget *> widgets;
    const QList<QWidget *> all = window.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && !name.startsWith("qt_"_L1))
            widgets.append(widget);
    }
    return widgets;
}

QStringList rowsOf(const QMainWindow &window, const char *comboBox)
{
    const auto *list = window.findChild<QComboBox *>(QString::fromLatin1(comboBox));
    if (!list)
        qFatal("no %s in the window", comboBox);

    QStringList rows;
    for (int row = 0; row < list->count(); ++row) {
        QString text = list->itemText(row);
        if (list->itemData(row).isValid())
            text += " (with data)"_L1;
        if (!list->itemIcon(row).isNull())
            text += " (with icon)"_L1;
        rows.append(text);
    }
    return rows;
}

QStringList windowState(const QMainWindow &window)
{
    QStringList state{window.windowTitle()};
    const QList<QWidget *> widgets = namedWidgets(window);
    for (const QWidget *widget : widgets) {
        QStringList line{widget->objectName(), widget->isHidden() ? u"hidden"_s : u"shown"_s,
                         widget->isEnabled() ? u"enabled"_s : u"disabled"_s};
        QStringList rows;
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            line.append(label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            line.append(button->isChecked() ? u"checked"_s : u"not checked"_s);
        } else if (const auto *slider = qobject_cast<const QSlider *>(widget)) {
            line.append(u"%1..%2 at %3"_s.arg(slider->minimum())
                            .arg(slider->maximum())
                            .arg(slider->value()));
        } else if (const auto *box = qobject_cast<const QSpinBox *>(widget)) {
            line.append(QString::number(box->value()));
        } else if (const auto *edit = qobject_cast<const QTextEdit *>(widget)) {
            line.append(edit->toPlainText());
        } else if (const auto *list = qobject_cast<const QComboBox *>(widget)) {
            line.append(u"current %1"_s.arg(list->currentIndex()));
            rows = rowsOf(window, list->objectName().toLatin1().constData());
        }
        state.append(line.join(" | "_L1));
        state.append(rows);
    }
    return state;
}

BracingTranslator::BracingTranslator()
{
    QCoreApplication::installTranslator(this);
}

BracingTranslator::~BracingTranslator()
{
    QCoreApplication::removeTranslator(this);
}

QString BracingTranslator::translate(const char *context, const char *sourceText, const char *,
                                     int) const
{
    if (qstrcmp(context, "MainWindow") != 0)
        return {};
    return u'{' + QString::fromUtf8(sourceText) + u'}';
}
