// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "catalogue/devicecatalogue.h"
#include "tests/support/folders.h"
#include "tests/support/testregistry.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

// Some tests take the models one after the other, from rows that are written by hand. One that has
// no row there would be untested, and nothing would be red.
class tst_ModelRows : public QObject
{
    Q_OBJECT

private slots:
    void everyModelHasOne_data();
    void everyModelHasOne();
};

void tst_ModelRows::everyModelHasOne_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("beginning"); // of a row, %1 the model
    QTest::addColumn<bool>("onlySerial");

    const auto row = [](const char *path, const QString &beginning, bool onlySerial = false) {
        QTest::newRow(path) << QString::fromLatin1(path) << beginning << onlySerial;
    };
    row("link/tst_connection.cpp", u"{\"%1\", "_s, true);
    row("program/tst_simulated.cpp", u"newRow(\"%1\")"_s);
    row("program/tst_soak.cpp", u"{u\"%1\"_s, Link::"_s);
    row("protocol/tst_commands.cpp", u"addModel(\"%1\","_s);
    row("simulator/tst_simulateddevice.cpp", u"row(\"%1\", "_s);
    row("simulator/tst_simulator.cpp", u"row(\"%1\", "_s);
}

void tst_ModelRows::everyModelHasOne()
{
    QFETCH(const QString, path);
    QFETCH(const QString, beginning);
    QFETCH(const bool, onlySerial);

    QFile file(sourcePath("tests/"_L1 + path));
    QVERIFY2(file.open(QIODevice::ReadOnly | QIODevice::Text), qPrintable(file.fileName()));
    const QString text = QString::fromUtf8(file.readAll());
    QStringList missing;
    for (const DeviceModel &model : buildDeviceCatalogue()) {
        if (onlySerial && model.transport != TransportKind::Serial)
            continue;
        if (!text.contains(beginning.arg(model.name)))
            missing.append(model.name);
    }
    QCOMPARE(missing.join(", "_L1), QString());
}

TESSALY_TEST(tst_ModelRows)
#include "tst_modelrows.moc"
