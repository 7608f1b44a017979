// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/folders.h"
#include "tests/support/modelsheets.h"
#include "tests/support/programtestmain.h"
#include "tests/support/simulatorprogram.h"
#include "tests/support/testedprocess.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int timeLimit = 20'000;     // in ms; reached only by what fails
constexpr QSize windowSize(640, 798); // at scale 1
constexpr QSize thumbnailSize(400, 499);
constexpr int captionHeight = 24;
constexpr int gap = 8;

/// How the program is started for a picture.
struct Look
{
    QString locale;
    bool isDark = false;
    int scale = 1;
    bool isConnected = false;

    QString name() const
    {
        return u"%1, scale %2, %3"_s.arg(isDark ? u"dark"_s : u"light"_s)
            .arg(scale)
            .arg(isConnected ? u"connected"_s : u"not connected"_s);
    }
};

/// The start-up settings that choose a model and, if wanted, connect.
QByteArray settings(const ModelSheet &sheet, const QString &endpoint, bool isConnected)
{
    const QStringList address
        = (sheet.isTcp ? endpoint.section(u' ', 0, 0) : u"192.168.1.20"_s).split(u'.');
    const QStringList lines{u"TSY11.00"_s,
                            u"Tessaly (Configuration File)"_s,
                            u"Generate by: scripts/screenshots"_s,
                            u"*** Default Language:"_s,
                            u"(default)"_s,
                            u"*** Default Device:"_s,
                            sheet.name,
                            u"*** Default Serial Port:"_s,
                            sheet.isTcp ? u"(default)"_s : endpoint,
                            u"*** Default Baudrate:"_s,
                            QString::number(sheet.defaultBaudRate),
                            u"*** Default IP Address:"_s,
                            address.at(0),
                            address.at(1),
                            address.at(2),
                            address.at(3),
                            u"*** Default Auto-connection:"_s,
                            isConnected ? u"1"_s : u"0"_s};
    return lines.join(u'\n').toUtf8() + '\n';
}

/// What makes Qt's theme for a KDE desktop dark.
QByteArray darkColours()
{
    const QByteArray colours = "BackgroundNormal=43,43,43\n"
                               "BackgroundAlternate=53,53,53\n"
                               "ForegroundNormal=239,239,239\n"
                               "ForegroundInactive=160,160,160\n"
                               "ForegroundLink=106,176,243\n"
                               "ForegroundVisited=176,146,226\n";
    QByteArray text;
    for (const char *group : {"Window", "Button", "Tooltip"})
        text += QByteArray("[Colors:") + group + "]\n" + colours;
    text += "[Colors:View]\n" + QByteArray(colours).replace("43,43,43", "30,30,30");
    text += "[Colors:Selection]\nBackgroundNormal=42,110,165\nForegroundNormal=255,255,255\n";
    return text;
}

bool write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly)
           && file.write(bytes) == bytes.size();
}

/// The window's number; 0 while there is none.
WId findWindow(qint64 processId)
{
    QProcess process;
    process.start(u"xdotool"_s, {u"search"_s, u"--all"_s, u"--onlyvisible"_s, u"--pid"_s,
                                 QString::number(processId), u"--name"_s, u"^Tessaly"_s});
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().toULongLong();
}

/// Plays, makes it less loud and plays a folder, as far as the model can, so that its window shows
/// the bytes of a command and answers.
void useModel(qint64 processId)
{
    const QString window = QString::number(findWindow(processId));
    QProcess::execute(u"xdotool"_s, {u"windowfocus"_s, u"--sync"_s, window, u"key"_s,
                                     u"XF86AudioPlay"_s, u"ctrl+minus"_s, u"ctrl+5"_s});
}

/// The window when it has changed from what it was before, and then stopped changing; null when
/// that does not happen.
QImage photograph(qint64 processId, const QImage &before = {})
{
    WId window = 0;
    QImage image;
    const bool isCalm = QTest::qWaitFor(
        [&] {
            if (window == 0)
                window = findWindow(processId);
            if (window == 0)
                return false;
            const QImage next
                = QGuiApplication::primaryScreen()->grabWindow(window).toImage().convertToFormat(
                    QImage::Format_RGB32);
            const bool isSame = !next.isNull() && next == image && next != before;
            image = next;
            QTest::qWait(100);
            return isSame;
        },
        timeLimit);
    return isCalm ? image : QImage();
}

class Photographer
{
public:
    explicit Photographer(SimulatorProgram &simulator)
        : m_simulator(simulator)
    {
    }

    /// Makes all pictures of a language, and their contact sheet.
    bool photographLanguage(const QString &locale, const QDir &folder);

private:
    QImage take(const ModelSheet &sheet, const Look &look);

    SimulatorProgram &m_simulator;
};

QImage Photographer::take(const ModelSheet &sheet, const Look &look)
{
    const QTemporaryDir home;
    const QString endpoint = m_simulator.endpoint(sheet.name);
    if (!write(home.filePath(u"Ambrette/Tessaly/Tessaly.cfg"_s),
               settings(sheet, endpoint, look.isConnected))
        || !write(home.filePath(u".config/kdeglobals"_s), look.isDark ? darkColours() : "")) {
        return {};
    }
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"XDG_DATA_HOME"_s, home.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, home.filePath(u".config"_s));
    environment.insert(u"LC_ALL"_s, look.locale);
    environment.insert(u"TESSALY_EXTRA_PORTS"_s, m_simulator.serialPorts().join(u':'));
    environment.insert(u"QT_SCALE_FACTOR"_s, QString::number(look.scale));
    if (look.isDark) {
        environment.insert(u"XDG_CURRENT_DESKTOP"_s, u"KDE"_s);
        environment.insert(u"KDE_SESSION_VERSION"_s, u"5"_s);
    }

    const QString path = QCoreApplication::applicationDirPath();
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(path);
    bindToTest(program);
    program.start(path + "/tessaly"_L1);
    QImage image = photograph(program.processId());
    if (look.isConnected && !image.isNull()) {
        useModel(program.processId());
        image = photograph(program.processId(), image);
    }
    program.kill();
    program.waitForFinished();
    return image.size() == windowSize * look.scale ? image : QImage();
}

bool Photographer::photographLanguage(const QString &locale, const QDir &folder)
{
    const QString language = locale.section(u'.', 0, 0);
    QList<Look> looks;
    for (const bool isDark : {false, true}) {
        for (const int scale : {1, 2}) {
            for (const bool isConnected : {false, true})
                looks.append({locale, isDark, scale, isConnected});
        }
    }
    const QList<ModelSheet> &models = modelSheets();
    const QSize cell = thumbnailSize + QSize(gap, gap + captionHeight);
    QImage sheet(cell.width() * static_cast<int>(looks.size()) + gap,
                 cell.height() * static_cast<int>(models.size()) + gap, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);

    for (int row = 0; row < models.size(); ++row) {
        for (int column = 0; column < looks.size(); ++column) {
            const ModelSheet &model = models.at(row);
            const Look &look = looks.at(column);
            const QImage image = take(model, look);
            if (image.isNull()) {
                qWarning().noquote() << "no picture of" << model.name << language << look.name();
                return false;
            }
            const QString name = u"%1-%2-%3.png"_s.arg(QString::number(row).rightJustified(3, u'0'),
                                                       model.name, look.name());
            const QDir pictures(folder.filePath(language));
            if (!pictures.mkpath(u"."_s)
                || !image.save(pictures.filePath(QString(name).replace(u'/', u'-')))) {
                return false;
            }
            const QRect place(
                QPoint(gap + column * cell.width(), gap + captionHeight + row * cell.height()),
                thumbnailSize);
            painter.drawText(place.adjusted(0, -captionHeight, 0, 0), Qt::AlignTop,
                             model.name + u": "_s + look.name());
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.drawImage(place, image.scaled(thumbnailSize, Qt::IgnoreAspectRatio,
                                                  Qt::SmoothTransformation));
        }
    }
    painter.end();
    const QString path = folder.filePath(u"contact-sheet-%1.png"_s.arg(language));
    if (!sheet.save(path))
        return false;
    QTextStream(stdout) << path << '\n';
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    VirtualScreen screen;
    if (!prepareProgramTest(screen, "1400x1700"))
        return EXIT_FAILURE;
    const QTemporaryDir folder;
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("QT_LOGGING_RULES", "qt.core.qobject.connect=false");
    const QApplication application(argc, argv);

    QStringList locales = QCoreApplication::arguments().sliced(1);
    if (locales.isEmpty()) {
        locales.append(u"en"_s);
        const QDir programs(QCoreApplication::applicationDirPath());
        for (const QString &file : programs.entryList({u"LanguageData_*.qm"_s}))
            locales.append(file.section(u'_', 1).section(u'.', 0, 0));
    }
    SimulatorProgram simulator;
    if (!simulator.start({u"--all"_s, u"--link"_s, folder.filePath(u"ports"_s), u"--address"_s,
                          SimulatorProgram::firstAddress().toString()})) {
        qWarning().noquote() << simulator.errorOutput();
        return EXIT_FAILURE;
    }
    Photographer photographer(simulator);
    const QDir pictures(buildPath(u"screenshots"_s));
    for (const QString &locale : std::as_const(locales)) {
        if (!photographer.photographLanguage(locale + ".UTF-8"_L1, pictures))
            return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
