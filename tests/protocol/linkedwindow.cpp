// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/protocol/linkedwindow.h"

#include "app/applicationobjects.h"
#include "tests/support/builtmodels.h"
#include "tests/support/hexbytes.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QSerialPort>
#include <QTcpSocket>

LinkedWindow::LinkedWindow(const QString &model)
{
    for (const DeviceModel &unoffered : unofferedModels()) {
        deviceCatalogue.append(unoffered);
        find<QComboBox>("comboBox_Player")->addItem(unoffered.name);
    }
    link(model);
}

LinkedWindow::LinkedWindow(const DeviceModel &model)
{
    const int row = rowOfModel(model.name);
    if (row >= 0) {
        deviceCatalogue[row] = model;
    } else {
        deviceCatalogue.append(model);
        find<QComboBox>("comboBox_Player")->addItem(model.name);
    }
    link(model.name);
}

LinkedWindow::~LinkedWindow()
{
    // While the device is still there: the system gives the name of a pseudo-terminal to the next
    // process as soon as both ends are closed, and the window's lock of the port would still exist.
    window.on_pushButton_Disconnect_clicked();
}

void LinkedWindow::link(const QString &name)
{
    const int row = rowOfModel(name);
    if (row < 0)
        qFatal("no model %s in the window", qPrintable(name));
    selectModel(row);
    m_model = deviceCatalogue.at(row);
    if (m_model.transport == TransportKind::Serial) {
        connectSerial(m_pty);
        m_isLinked = serialPort->isOpen();
        return;
    }
    m_tcp = std::make_unique<TcpPeer>(m_model.tcpPort);
    if (m_model.connectsOnDemand())
        setAddress(TcpPeer::address().toString());
    else
        m_isLinked = connectTcp();
}

bool LinkedWindow::choose(const char *list, const QString &text)
{
    if (!selectText(list, text))
        return false;
    auto *box = find<QComboBox>(list);
    emit box->activated(box->currentIndex());
    return true;
}

void LinkedWindow::setListText(const char *list, const QString &text)
{
    auto *box = find<QComboBox>(list);
    box->addItem(text);
    box->setCurrentIndex(box->count() - 1);
}

bool LinkedWindow::choosePlayer(int playerId)
{
    return selectText("comboBox_ID", QString::number(playerId));
}

Sent LinkedWindow::sentBy(const std::function<void()> &act)
{
    if (!m_isLinked || !m_messageBoxes.messages.isEmpty())
        return {"no link" + messageText(), {}};
    takeReceived();
    act();
    const QString shown = text("label_Bytes_Sended");

    const QByteArray lastBody = "the last frame";
    QByteArray lastFrame = '\x7E' + lastBody;
    // Known to write twice to a connection that is open already.
    if (m_model.connectsOnDemand() && tcpSocket->isOpen())
        lastFrame += lastFrame;
    const qsizetype header = m_model.protocol == ProtocolKind::Classic ? 1 : 0;
    window.sendCommand(0x7E, lastBody);

    QByteArray received;
    const bool isComplete = QTest::qWaitFor(
        [&] {
            received += takeReceived();
            return received.endsWith(lastFrame);
        },
        patience);
    // Nothing more is to be expected of a link that loses frames; the next acts need not wait.
    m_isLinked = isComplete;
    if (!m_messageBoxes.messages.isEmpty())
        return {"a message box" + messageText(), shown};
    if (!isComplete)
        return {"without a last frame: " + hexBytes(received), shown};
    if (m_model.connectsOnDemand() && !hangUp())
        return {"the window kept its connection", shown};
    received.chop(lastFrame.size() + header);
    return {hexBytes(received), shown};
}

Sent LinkedWindow::press(const char *button)
{
    const auto *widget = find<QAbstractButton>(button);
    if (!widget->isVisible() || !widget->isEnabled())
        return {QByteArray(button) + " cannot be clicked", {}};
    return sentBy([&] { click(button); });
}

Sent LinkedWindow::type(const QString &shortcut)
{
    const QKeySequence keys = QKeySequence::fromString(shortcut, QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        return {"no key " + shortcut.toLatin1(), {}};
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window, patience))
        return {"the window is not active", {}};
    return sentBy([&] {
        // QTest::keyClick() knows no Key_MediaPause.
        for (const bool isPress : {true, false}) {
            QTest::simulateEvent(&window, isPress, keys[0].key(), keys[0].keyboardModifiers(), {},
                                 false);
        }
    });
}

Sent LinkedWindow::call(const char *slot)
{
    bool isCalled = false;
    const Sent sent = sentBy([&] { isCalled = QMetaObject::invokeMethod(&window, slot); });
    return isCalled ? sent : Sent{"no slot " + QByteArray(slot), {}};
}

QByteArray LinkedWindow::takeReceived()
{
    return m_tcp ? m_tcp->takeReceived() : m_pty.takeReceived();
}

/// As a device does after each command when it is connected to for every one.
bool LinkedWindow::hangUp() const
{
    if (m_tcp->isConnected())
        m_tcp->hangUp();
    return QTest::qWaitFor([] { return !tcpSocket->isOpen(); }, patience);
}

/// That of the first box, as the end of a report; empty where there was none.
QByteArray LinkedWindow::messageText() const
{
    const QByteArray text = m_messageBoxes.messages.isEmpty()
                                ? QByteArray()
                                : m_messageBoxes.messages.constFirst().text.toUtf8();
    return text.isEmpty() ? text : ": " + text;
}
