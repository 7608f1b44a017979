// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/faults/markupfault.h"

using namespace Qt::Literals::StringLiterals;

QList<AnswerStep> MarkupFault::steps(const QByteArray &answer) const
{
    const QByteArray text = answer.trimmed();
    return {
        {{},
         "<b>"_ba + text
             + "</b> <img src=\"http://127.0.0.1:9/device.png\">"
               "<img src=\"file:///etc/hostname\"><a href=\"http://127.0.0.1:9/\">more</a>\r\n"}};
}
