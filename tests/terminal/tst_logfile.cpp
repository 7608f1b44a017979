// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "terminal/logfile.h"
#include "tests/support/filecontent.h"
#include "tests/support/testregistry.h"

#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lets no file of this process grow beyond a size for as long as it lives, like a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN); // else the process would end
        ::getrlimit(RLIMIT_FSIZE, &m_usual);
        rlimit limit = m_usual;
        limit.rlim_cur = size;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_usual); }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    rlimit m_usual{};
};

} // namespace

class tst_LogFile : public QObject
{
    Q_OBJECT

private slots:
    void appends()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"log"_s);
        for (const QString &line : {u"one"_s, u"zwei \u00E4"_s}) {
            LogFile log;
            QVERIFY(log.open(path));
            log.write(line);
            QVERIFY(!log.isFailing());
        }
        QCOMPARE(contentOf(path), "one\nzwei \xC3\xA4\n"_ba);
    }

    void eachLineIsOutAtOnce()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"log"_s);
        LogFile log;
        QVERIFY(log.open(path));
        QCOMPARE(contentOf(path), ""_ba);
        log.write(u"one"_s);
        QCOMPARE(contentOf(path), "one\n"_ba);
    }

    void cannotBeOpened()
    {
        LogFile log;
        QVERIFY(!log.open(u"/dev/null/log"_s));
        QCOMPARE(log.errorString(), u"Not a directory"_s);
        log.write(u"to nowhere"_s);
        QVERIFY(!log.isFailing());
    }

    // What could not be written comes out with the next line that can.
    void fullDiskForAWhile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"log"_s);
        LogFile log;
        QVERIFY(log.open(path));
        log.write(u"one"_s);
        {
            const FullDisk disk(6);
            log.write(u"two"_s);
            QVERIFY(log.isFailing());
            log.write(u"three"_s);
            QVERIFY(log.isFailing());
            QCOMPARE(contentOf(path), "one\ntw"_ba);
        }
        log.write(u"four"_s);
        QVERIFY(!log.isFailing());
        QCOMPARE(contentOf(path), "one\ntwo\nthree\nfour\n"_ba);
    }
};

TESSALY_TEST(tst_LogFile)
#include "tst_logfile.moc"
