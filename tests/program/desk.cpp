// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/program/desk.h"

#include "tests/support/tcppeer.h"

#include <QHostAddress>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

Desk::Desk(const ModelSheet &sheet)
    : m_sheet(sheet)
    , m_console(m_port)
{
}

Desk::Desk(const QString &model)
    : Desk(sheetOf(model))
{
}

bool Desk::startSimulator(const QString &fault)
{
    QStringList arguments{u"--model"_s, m_sheet.name};
    arguments += m_sheet.isTcp ? QStringList{u"--address"_s, TcpPeer::address().toString()}
                               : QStringList{u"--link"_s, m_port};
    if (!fault.isEmpty())
        arguments += {u"--fault"_s, fault};
    if (m_simulator.start(arguments))
        return true;
    qWarning() << "the simulator did not start:" << m_simulator.errorOutput();
    return false;
}

bool Desk::startConsole()
{
    return m_console.start() && m_console.choose("comboBox_Player", m_sheet.name)
           && (m_sheet.isTcp ? m_console.typeAddress(TcpPeer::address().toString())
                             : m_console.choose("comboBox_Port", m_port));
}

bool Desk::connectLink()
{
    if (connectsOnDemand())
        return m_console.looksAsExpected();
    if (!m_console.click("pushButton_Connect"))
        return false;
    m_console.expectLink(true);
    return m_console.looksAsExpected();
}

bool Desk::disconnectLink()
{
    return connectsOnDemand() || (m_console.click("pushButton_Disconnect") && isDisconnected());
}

bool Desk::isDisconnected()
{
    if (!connectsOnDemand())
        m_console.expectLink(false);
    return m_console.looksAsExpected();
}

bool Desk::choose(const UserMove &move)
{
    return std::ranges::all_of(move.choices, [this](const UserMove::Choice &choice) {
        return m_console.choose(choice.list.constData(), choice.text);
    });
}

bool Desk::plays()
{
    const bool isClicked = m_console.click("pushButton_Play");
    expectSent(play());
    return isClicked;
}

bool Desk::stops()
{
    const bool isPressed = m_console.press({u"XF86AudioStop"_s});
    expectSent(stop());
    return isPressed;
}

QString Desk::line(quint32 id) const
{
    const SheetCommand command = m_sheet.commandsOf(id).constFirst();
    return logLine(m_sheet, {command, {}, command.frame}, 0);
}

bool Desk::showsReceived(const QString &text, int limit)
{
    return m_console.click("textEdit_Data") && m_console.copies(text, limit);
}

bool Desk::showsSent(const QString &bytes)
{
    return m_console.click("label_Bytes_Sended") && m_console.copies(bytes);
}

void Desk::expectSent(const QString &line)
{
    m_console.twin<QLabel>("label_Bytes_Sended")->setText(sentBytes(line));
}

bool Desk::saveScreenshot()
{
    const QStringList name{QString::fromLatin1(QTest::currentTestFunction()),
                           QString::fromLatin1(QTest::currentDataTag())};
    return m_console.saveScreenshot(name.join(u'-').replace(u'/', u'-'));
}

QString Desk::sentBytes(const QString &line)
{
    return line.section(" | "_L1, 2, 2);
}
