// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/answerprinter.h"

#include <cerrno>
#include <climits>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What is kept for a reader that stands still.
constexpr qsizetype mostUnwritten = 64 << 20;

} // namespace

AnswerPrinter::AnswerPrinter(ByteForm form, QObject *parent)
    : QObject(parent)
    , m_form(form)
    , m_decoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom)
    , m_notifier(STDOUT_FILENO, QSocketNotifier::Write)
{
    m_notifier.setEnabled(false);
    connect(&m_notifier, &QSocketNotifier::activated, this, &AnswerPrinter::writeSome);
}

void AnswerPrinter::print(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    if (m_form == ByteForm::Text) {
        const QString text = m_decoder(bytes);
        add(text.toUtf8());
        m_isInLine = !text.endsWith(u'\n');
        return;
    }
    if (m_isInLine)
        add(" "_ba);
    add(numbersText(bytes, m_form).toLatin1());
    m_isInLine = true;
}

void AnswerPrinter::endLine()
{
    // The rest of a character that comes later belongs to another answer.
    const QString rest = m_decoder("\n"_ba);
    add(rest.chopped(rest.endsWith(u'\n') ? 1 : 0).toUtf8());
    if (!m_isInLine)
        return;
    add("\n"_ba);
    m_isInLine = false;
}

void AnswerPrinter::add(const QByteArray &text)
{
    if (!m_error.isEmpty() || text.isEmpty())
        return;
    if (m_unwritten.size() + text.size() > mostUnwritten) {
        fail(u"its reader stands still"_s);
        return;
    }
    m_unwritten += text;
    m_notifier.setEnabled(true);
}

/// A pipe that is ready takes PIPE_BUF bytes without waiting.
void AnswerPrinter::writeSome()
{
    const auto size = static_cast<size_t>(qMin<qsizetype>(m_unwritten.size(), PIPE_BUF));
    const ssize_t count = ::write(STDOUT_FILENO, m_unwritten.constData(), size);
    if (count > 0)
        m_unwritten.remove(0, count);
    else if (count < 0 && errno != EINTR && errno != EAGAIN)
        fail(qt_error_string(errno));
    if (m_unwritten.isEmpty()) {
        m_notifier.setEnabled(false);
        emit done();
    }
}

void AnswerPrinter::fail(const QString &reason)
{
    m_error = reason;
    m_unwritten.clear();
}
