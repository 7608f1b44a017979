// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "app/applicationobjects.h"
#include "app/mainwindow.h"
#include "tests/app/windowfiles.h"
#include "tests/support/folders.h"
#include "tests/support/modelsheets.h"
#include "tests/support/ptypeer.h"
#include "tests/support/settingsfile.h"
#include "tests/support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLocalServer>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 mebibyte = 1 << 20;
constexpr qint64 gibibyte = 1 << 30;

/// For a window's coming and for its going, in milliseconds; many times what a busy machine takes.
constexpr int timeLimit = 10'000;
/// What a window may take at its highest, beyond what was there before it.
#ifdef TESSALY_SANITIZED
constexpr qint64 memoryLimit = 640 * mebibyte; // what was given back is kept for a while
#else
constexpr qint64 memoryLimit = 48 * mebibyte;
#endif

bool writeLong(const QString &path, const QByteArray &bytes, qint64 size)
{
    // The rest are zeros that take no room on the disk.
    return writeFile(path, bytes) && QFile::resize(path, size);
}

/// A line of /proc/self/status, in bytes.
qint64 memory(QByteArrayView name)
{
    const QByteArrayList lines = readFile(u"/proc/self/status"_s).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
    }
    return 0;
}

/// Lets whoever takes memory without end die of it before the machine does.
class MemoryBarrier
{
public:
    MemoryBarrier()
    {
        ::getrlimit(RLIMIT_DATA, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = static_cast<rlim_t>(memory("VmData:") + gibibyte);
        ::setrlimit(RLIMIT_DATA, &limit);
    }
    ~MemoryBarrier() { ::setrlimit(RLIMIT_DATA, &m_before); }
    Q_DISABLE_COPY_MOVE(MemoryBarrier)

private:
    rlimit m_before{};
};

/// A window that has to come up as a new user sees it, soon, and has to go as soon.
class NewWindow
{
public:
    NewWindow()
    {
        // The highest value counts from now on.
        m_isMeasured = writeFile(u"/proc/self/clear_refs"_s, "5");
        m_memory = memory("VmHWM:");
        QElapsedTimer timer;
        timer.start();
        m_window = std::make_unique<MainWindow>();
        m_startTime = timer.elapsed();
    }

    /// Ends it.
    /// \return what was wrong; empty when all was well
    QString end()
    {
        QElapsedTimer timer;
        timer.start();
        m_window.reset();
        const qint64 endTime = timer.elapsed();
        if (m_startTime > timeLimit)
            return u"started in %1 ms"_s.arg(m_startTime);
        if (endTime > timeLimit)
            return u"ended in %1 ms"_s.arg(endTime);
        if (!m_isMeasured)
            return u"memory not measured"_s;
        const qint64 taken = memory("VmHWM:") - m_memory;
        if (taken > memoryLimit)
            return u"took %1 MiB"_s.arg(taken / mebibyte);
        return {};
    }

    template<typename T>
    T *widget(const char *name) const
    {
        return ::widget<T>(*m_window, name);
    }

    /// Language, model, address, as the window shows them.
    QString settings() const
    {
        const auto part
            = [this](const char *name) { return QString::number(widget<QSpinBox>(name)->value()); };
        const char *language = "other";
        for (const char *action : {"action_Default", "action_English", "action_French"}) {
            if (widget<QAction>(action)->isChecked())
                language = action + qstrlen("action_");
        }
        return QLatin1StringView(language) + ", "_L1
               + widget<QComboBox>("comboBox_Player")->currentText() + ", "_L1
               + QStringList{part("spinBox_IP_1"), part("spinBox_IP_2"), part("spinBox_IP_3"),
                             part("spinBox_IP_4")}
                     .join(u'.');
    }

private:
    MemoryBarrier m_barrier;
    bool m_isMeasured = false;
    qint64 m_memory = 0;
    qint64 m_startTime = 0;
    std::unique_ptr<MainWindow> m_window;
};

const SettingsFile chosen{
    .language = "French", .model = "Ampra One", .address = {"1", "2", "3", "4"}};

/// Puts something there, and returns whether that worked.
using Placing = bool (*)(const QString &path);

/// A pipe, one end of which somebody keeps open who neither reads nor writes.
bool placeIdlePipe(const QString &path)
{
    // Lives until the process ends.
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0
           && ::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC) >= 0;
}

bool placePipe(const QString &path)
{
    return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}

QByteArray frenchFile()
{
    return readFile(programPath(u"LanguageData_fr.qm"_s));
}

} // namespace

Q_DECLARE_METATYPE(Placing)

/// Files that are nobody's settings or translation: the window comes up, with its defaults.
class tst_HostileFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void settings_data();
    void settings();
    void savedIntoPipe_data();
    void savedIntoPipe();
    void folderVanishes();
    void folderBecomesFile();

    void translation_data();
    void translation();
    void soundTranslation();

private:
    std::unique_ptr<QTemporaryDir> m_programFolder;
};

void tst_HostileFiles::initTestCase()
{
    // What an ordinary window takes.
    NewWindow window;
    QCOMPARE(window.end(), QString());
}

void tst_HostileFiles::init()
{
    QVERIFY(QDir(settingsFolder()).removeRecursively());
    QVERIFY(QDir().mkpath(settingsFolder()));
    m_programFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_programFolder->path()));
}

void tst_HostileFiles::cleanup()
{
    QCoreApplication::removeTranslator(translator);
    QVERIFY(QDir::setCurrent(QDir::tempPath()));
}

void tst_HostileFiles::settings_data()
{
    QTest::addColumn<Placing>("place");
    QTest::addColumn<QString>("settings");

    const QString firstModel = modelSheets().constFirst().name;
    const QString initial = u"Default, "_s + firstModel + u", 0.0.0.0"_s;
    const auto row = [](const char *name, const QString &settings, Placing place) {
        QTest::newRow(name) << place << settings;
    };
    row("link to zeros without end", initial,
        [](const QString &path) { return QFile::link(u"/dev/zero"_s, path); });
    row("link to random bytes without end", initial,
        [](const QString &path) { return QFile::link(u"/dev/urandom"_s, path); });
    row("link to itself", initial, [](const QString &path) { return QFile::link(path, path); });
    row("link to nothing", initial,
        [](const QString &path) { return QFile::link(u"/dev/null"_s, path); });
    row("link to a silent terminal", initial, [](const QString &path) {
        static const PtyPeer terminal;
        return QFile::link(terminal.portName(), path);
    });
    row("pipe without a writer", initial, placePipe);
    row("pipe with a silent writer", initial, placeIdlePipe);
    row("socket", initial, [](const QString &path) {
        static QLocalServer server;
        return server.listen(path);
    });
    row("folder", initial, [](const QString &path) { return QDir().mkpath(path); });
    row("8 GiB of zeros", initial,
        [](const QString &path) { return writeLong(path, {}, 8 * gibibyte); });
    row("8 GiB of zeros after the head", initial,
        [](const QString &path) { return writeLong(path, "TSY11.00\n", 8 * gibibyte); });
    row("8 GiB of zeros in the line of the model", u"French, "_s + firstModel + u", 0.0.0.0"_s,
        [](const QString &path) {
            return writeLong(path, chosen.lines().sliced(0, 6).join('\n') + '\n', 8 * gibibyte);
        });
    row("8 GiB of zeros after all lines", u"French, Ampra One, 1.2.3.4"_s,
        [](const QString &path) { return writeLong(path, chosen.bytes(), 8 * gibibyte); });
    row("a line of 64 MiB", initial, [](const QString &path) {
        return writeFile(path, "TSY11.00" + QByteArray(64 * mebibyte, 'A'));
    });
    row("64 MiB of line ends", initial, [](const QString &path) {
        return writeFile(path, "TSY11.00\n" + QByteArray(64 * mebibyte, '\n'));
    });
}

void tst_HostileFiles::settings()
{
    QFETCH(Placing, place);
    QFETCH(QString, settings);

    QVERIFY(place(settingsPath()));
    NewWindow window;
    QCOMPARE(window.settings(), settings);
    QCOMPARE(window.end(), QString());
}

void tst_HostileFiles::savedIntoPipe_data()
{
    QTest::addColumn<Placing>("place");

    QTest::newRow("that nobody reads") << &placePipe;
    QTest::newRow("that somebody keeps open") << &placeIdlePipe;
}

/// The pipe comes while the window is there.
void tst_HostileFiles::savedIntoPipe()
{
    QFETCH(Placing, place);

    NewWindow window;
    QVERIFY(place(settingsPath()));
    QCOMPARE(window.end(), QString());
    // It is left as it was.
    struct stat status
    {
    };
    QCOMPARE(::lstat(QFile::encodeName(settingsPath()).constData(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));
}

void tst_HostileFiles::folderVanishes()
{
    NewWindow window;
    QVERIFY(QDir(settingsFolder()).removeRecursively());
    QCOMPARE(window.end(), QString());
    QVERIFY(!QFile::exists(settingsFolder()));
}

void tst_HostileFiles::folderBecomesFile()
{
    NewWindow window;
    QVERIFY(QDir(settingsFolder()).removeRecursively());
    QVERIFY(writeFile(settingsFolder(), "a file"));
    QCOMPARE(window.end(), QString());
    QCOMPARE(readFile(settingsFolder()), "a file"_ba);
    QVERIFY(QFile::remove(settingsFolder()));
}

void tst_HostileFiles::translation_data()
{
    QTest::addColumn<Placing>("place");

    const auto row = [](const char *name, Placing place) { QTest::newRow(name) << place; };
    row("nothing", [](const QString &) { return true; });
    row("empty", [](const QString &path) { return writeFile(path, {}); });
    row("text",
        [](const QString &path) { return writeFile(path, "<?xml version=\"1.0\"?>\n<TS/>\n"); });
    row("link to zeros without end",
        [](const QString &path) { return QFile::link(u"/dev/zero"_s, path); });
    row("link to itself", [](const QString &path) { return QFile::link(path, path); });
    row("pipe without a writer", placePipe);
    row("pipe with a silent writer", placeIdlePipe);
    row("folder", [](const QString &path) { return QDir().mkpath(path); });
    row("8 GiB of zeros", [](const QString &path) { return writeLong(path, {}, 8 * gibibyte); });
    row("head alone", [](const QString &path) { return writeFile(path, frenchFile().first(16)); });
    row("8 GiB of zeros after the head",
        [](const QString &path) { return writeLong(path, frenchFile().first(16), 8 * gibibyte); });
    row("first half", [](const QString &path) {
        return writeFile(path, frenchFile().first(frenchFile().size() / 2));
    });
    row("all but the last byte",
        [](const QString &path) { return writeFile(path, frenchFile().chopped(1)); });
    row("names itself", [](const QString &path) {
        return writeFile(path, frenchFile() + "\x96\0\0\0\x22\0\0\0\x1E"_ba
                                   + "\0L\0a\0n\0g\0u\0a\0g\0e\0D\0a\0t\0a\0_\0f\0r"_ba);
    });
    row("damaged: source texts longer than the file", [](const QString &path) {
        return writeFile(path, frenchFile().replace("\x06\0\0"_ba, "\x06\x7F\0"_ba));
    });
    row("damaged: contexts longer than the file", [](const QString &path) {
        return writeFile(path, frenchFile().replace("\x07\0\0"_ba, "\x07\x7F\0"_ba));
    });
    row("damaged: texts of negative length", [](const QString &path) {
        return writeFile(path, frenchFile().replace("\x03\0\0\0"_ba, "\x03\xFF\xFF\xFF"_ba));
    });
}

void tst_HostileFiles::translation()
{
    QFETCH(Placing, place);

    QVERIFY(writeFile(settingsPath(), "TSY11.00\n\n\n\nFrench\n"));
    QVERIFY(place(m_programFolder->filePath(u"LanguageData_fr.qm"_s)));
    NewWindow window;
    QVERIFY2(window.settings().startsWith("French, "_L1), qPrintable(window.settings()));
    QCOMPARE(window.widget<QLabel>("label_Player")->text(), u"Player:"_s);
    QCOMPARE(window.end(), QString());
}

/// The same file undamaged is used: the rows above do not pass for another reason.
void tst_HostileFiles::soundTranslation()
{
    QVERIFY(writeFile(settingsPath(), "TSY11.00\n\n\n\nFrench\n"));
    QVERIFY(writeFile(m_programFolder->filePath(u"LanguageData_fr.qm"_s), frenchFile()));
    NewWindow window;
    QCOMPARE(window.widget<QLabel>("label_Player")->text(), u"Lecteur\u00A0:"_s);
    QCOMPARE(window.end(), QString());
}

TESSALY_WINDOW_TEST(tst_HostileFiles)
#include "tst_hostilefiles.moc"
