// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/receivedtextedit.h"

#include <QImage>
#include <QMimeData>
#include <QTextDocument>
#include <QTextDocumentFragment>

QVariant ReceivedTextEdit::loadResource(int type, const QUrl &)
{
    // An invalid variant would let the document open the name as a file.
    if (type != QTextDocument::ImageResource)
        return QByteArray("");
    static const QImage placeholder = [] {
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(Qt::lightGray);
        return image;
    }();
    return placeholder;
}

QMimeData *ReceivedTextEdit::createMimeDataFromSelection() const
{
    auto *mime = new QMimeData;
    mime->setText(textCursor().selection().toPlainText());
    return mime;
}
