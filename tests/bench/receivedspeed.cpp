// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/speeds.h"

#include "app/applicationobjects.h"
#include "link/receivedbytestext.h"
#include "tests/bench/speedtable.h"
#include "tests/bench/turns.h"
#include "tests/support/consolewindow.h"
#include "tests/support/ptypeer.h"

#include <QRadioButton>
#include <QScrollBar>
#include <QSerialPort>
#include <QTextDocument>
#include <QTextEdit>

namespace {

const QByteArray answer("status: playing, folder 012, file 0034, 00:01:23\r\n");

void settle()
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// A window that has received and shown the text, and has been quiet since.
class QuietWindow : public ConsoleWindow
{
public:
    QuietWindow(const char *form, const QString &text)
    {
        selectModel(rowOfModel(QStringLiteral("Tempo Deck")));
        connectSerial(m_peer);
        find<QRadioButton>(form)->setChecked(true);
        receivedText = text;
        showText(text);
        settle();
    }

    void showText(const QString &text) const
    {
        auto *editor = find<QTextEdit>("textEdit_Data");
        editor->setText(text);
        // To know where the text ends, all of its lines have to be laid out.
        editor->document()->size();
        QScrollBar *scrollBar = editor->verticalScrollBar();
        scrollBar->setValue(scrollBar->maximum());
    }

    bool showsTheEndOf(const QString &text) const
    {
        return find<QTextEdit>("textEdit_Data")
            ->toPlainText()
            .trimmed()
            .endsWith(text.trimmed().last(10));
    }

    /// Lets the answer arrive.
    /// \return the time from its signal until it is shown, in ns
    double timeOfArrival()
    {
        // The bytes are waited for without the window, so that reading them is all that remains.
        QObject::disconnect(serialPort, SIGNAL(readyRead()), &window,
                            SLOT(update_Serial_Read_Data()));
        if (!m_peer.send(answer)
            || !QTest::qWaitFor([] { return serialPort->bytesAvailable() == answer.size(); }))
            qFatal("the answer does not arrive");
        return processorTimeOf([this] { window.update_Serial_Read_Data(); });
    }

private:
    PtyPeer m_peer;
};

void measure(SpeedTable &table, const QByteArray &name, const char *form, const QString &before,
             const QString &after, int count)
{
    const Turns took = takeTurns(
        count,
        [&] {
            QuietWindow console(form, before);
            const double time = console.timeOfArrival();
            if (receivedText != after || !console.showsTheEndOf(after))
                qFatal("the answer is not shown");
            return time;
        },
        [&] {
            const QuietWindow console(form, before);
            return processorTimeOf([&] { console.showText(after); });
        });
    table.compare(name + " : set-text", took.ours, took.yardstick, 1.1,
                  SpeedTable::Unit::Nanoseconds);
}

} // namespace

void measureReceived(SpeedTable &table, bool quick)
{
    struct Amount
    {
        const char *name;
        qsizetype bytes;
        int count;
    };
    const Amount amounts[] = {
        {"0", 0, 100},
        {"10 kB", 10'000, 100},
        {"100 kB", 100'000, 30},
        {"1 MB", 1'000'000, 3},
    };
    for (const Amount &amount : amounts) {
        const QByteArray bytes = answer.repeated(amount.bytes / answer.size());
        const int count = quick ? qMin(amount.count, 5) : amount.count;
        measure(table, QByteArray("arrival as text behind ") + amount.name,
                "radioButton_Data_ASCII", asciiReceivedText(bytes),
                asciiReceivedText(bytes + answer), count);
    }
    for (const Amount &amount : amounts) {
        const QByteArray bytes = answer.repeated(amount.bytes / answer.size());
        const int count = quick ? qMin(amount.count, amount.bytes > 100'000 ? 1 : 5) : amount.count;
        measure(table, QByteArray("arrival in hexadecimal behind ") + amount.name,
                "radioButton_Data_Hex", hexReceivedText(bytes), hexReceivedText(bytes + answer),
                count);
    }
}
