// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/sheetrows.h"

#include <QTest>

namespace {

void addRows(const QList<ModelSheet> &sheets)
{
    QTest::addColumn<ModelSheet>("sheet");
    for (const ModelSheet &sheet : sheets)
        QTest::newRow(qPrintable(sheet.name)) << sheet;
}

} // namespace

void addModelRows()
{
    addRows(modelSheets());
}

void addAllModelRows()
{
    addRows(modelSheets() + unofferedSheets());
}
