// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "contrast.h"
#include "tests/support/testmain.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QPalette>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// Q_INIT_RESOURCE does not work inside a namespace.
static void initResources()
{
    Q_INIT_RESOURCE(images);
}

namespace {

constexpr int iconSize = 48;
constexpr int logoSize = 160;
constexpr double requiredContrast = 3;

const QString logo = u"Help_Panel_New_Logo"_s;

// The icons of the menus have a second image, for the highlighted line.
const char *const menuIconNames[] = {"Exit_A", "Web_Site_B", "Send_Mail", "About"};

QString pathOf(const QString &name)
{
    return ":/Images/"_L1 + name + ".png"_L1;
}

/// All of the program's, by name. Which widget has which icon is another test's matter.
QStringList iconNames()
{
    QStringList names;
    for (const QString &file : QDir(u":/Images"_s).entryList({u"*.png"_s})) {
        const QString name = file.chopped(4);
        if (!name.endsWith("@2x"_L1) && !name.endsWith("_Active"_L1) && name != logo)
            names.append(name);
    }
    return names;
}

QString doubledPath(const QString &path)
{
    return path.chopped(4) + "@2x.png"_L1;
}

/// As stored: QImage reads the density from the "@2x" of the name.
QImage imageAt(const QString &path)
{
    QImage image(path);
    image.setDevicePixelRatio(1);
    return image.convertToFormat(QImage::Format_ARGB32);
}

QImage iconAt16Pixels(const QString &path)
{
    const QImage image = QIcon(path).pixmap(QSize(16, 16), 1.0).toImage();
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// The most frequent colour among the opaque pixels; invalid when there are none.
QColor mainTone(const QImage &image)
{
    ColourCounts all;
    all.add(image, image.rect());
    ColourCounts opaque;
    for (auto it = all.counts().begin(); it != all.counts().end(); ++it) {
        if (qAlpha(it.key()) == 255)
            opaque.add(it.key(), it.value());
    }
    return opaque.isEmpty() ? QColor() : QColor::fromRgb(opaque.mostFrequent());
}

/// How many of the pixels that either picture paints look different, in percent.
double differenceInPercent(const QImage &one, const QImage &other)
{
    // Half of the full scale is seen, a shade of an edge is not.
    constexpr int visible = 128;
    int painted = 0;
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            if (qAlpha(a) < visible && qAlpha(b) < visible)
                continue;
            ++painted;
            const int distance
                = std::max({std::abs(qAlpha(a) - qAlpha(b)), std::abs(qRed(a) - qRed(b)),
                            std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
            if (distance >= visible)
                ++different;
        }
    }
    return painted == 0 ? 0 : 100.0 * different / painted;
}

/// The same of two icons at 16 pixels, where one that is merely moved counts as the same image.
double iconDifferenceInPercent(const QString &one, const QString &other)
{
    const QImage still = iconAt16Pixels(one);
    const QImage moving = iconAt16Pixels(other);
    double smallest = 100;
    for (int dy = -2; dy <= 2; ++dy) {
        for (int dx = -2; dx <= 2; ++dx) {
            const QImage moved = moving.copy(QRect(QPoint(dx, dy), moving.size()));
            smallest = std::min(smallest, differenceInPercent(still, moved));
        }
    }
    return smallest;
}

void addPictures()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    for (const QString &name : iconNames())
        QTest::newRow(qPrintable(name)) << pathOf(name) << iconSize;
    QTest::newRow("logo") << pathOf(logo) << logoSize;
}

void compareContrast(const QImage &image)
{
    const QColor tone = mainTone(image);
    QVERIFY2(tone.isValid(), "nothing is opaque");
    for (const char *background : {"#ffffff", "#efefef", "#353535", "#2b2b2b", "#1e1e1e"}) {
        const double found = contrast(tone.rgb(), QColor(QLatin1StringView(background)).rgb());
        QVERIFY2(found >= requiredContrast,
                 qPrintable(u"%1 on %2: %3"_s.arg(tone.name(), QLatin1StringView(background))
                                .arg(found, 0, 'f', 2)));
    }
}

} // namespace

class tst_Images : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { initResources(); }

    void sizes_data() { addPictures(); }
    void sizes();
    void scaledScreenShowsDoubledPicture_data() { addPictures(); }
    void scaledScreenShowsDoubledPicture();
    void mainToneContrasts_data() { addPictures(); }
    void mainToneContrasts();

    void highlightedMenuIcon_data();
    void highlightedMenuIcon();
    void applicationIcon();

    void noTwoAlike();
    void pairsDifferClearly_data();
    void pairsDifferClearly();
};

void tst_Images::sizes()
{
    QFETCH(const QString, path);
    QFETCH(const int, size);

    QCOMPARE(imageAt(path).size(), QSize(size, size));
    QCOMPARE(imageAt(doubledPath(path)).size(), QSize(size, size) * 2);
    QVERIFY(mainTone(imageAt(path)).isValid());
    // One picture in two densities, not two pictures
    const QImage shrunk = imageAt(doubledPath(path))
                              .scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double difference = differenceInPercent(imageAt(path), shrunk);
    QVERIFY2(difference < 1, qPrintable(QString::number(difference)));
}

void tst_Images::scaledScreenShowsDoubledPicture()
{
    QFETCH(const QString, path);
    QFETCH(const int, size);

    QCOMPARE(qApp->devicePixelRatio(), 2.0);
    const QIcon icon(path);
    const QList<QSize> available{QSize(size, size), QSize(size, size) * 2};
    QCOMPARE(icon.availableSizes(), available);
    const QImage shown = icon.pixmap(QSize(size, size), 2.0).toImage();
    QCOMPARE(shown.size(), QSize(size, size) * 2);
    QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32).pixelColor(size, size),
             imageAt(doubledPath(path)).pixelColor(size, size));
}

void tst_Images::mainToneContrasts()
{
    QFETCH(const QString, path);

    compareContrast(imageAt(path));
    if (QTest::currentTestFailed())
        return;
    compareContrast(imageAt(doubledPath(path)));
}

void tst_Images::highlightedMenuIcon_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("activePath");
    for (const char *name : menuIconNames) {
        const QString plain = QString::fromLatin1(name);
        QTest::newRow(name) << pathOf(plain) << pathOf(plain + "_Active"_L1);
    }
}

void tst_Images::highlightedMenuIcon()
{
    QFETCH(const QString, path);
    QFETCH(const QString, activePath);

    const QColor highlight = QPalette().color(QPalette::Highlight);
    for (const auto &[plain, active] :
         {std::pair(path, activePath), std::pair(doubledPath(path), doubledPath(activePath))}) {
        const QImage image = imageAt(active);
        QCOMPARE(image.size(), imageAt(plain).size());
        QCOMPARE(image.convertToFormat(QImage::Format_Alpha8),
                 imageAt(plain).convertToFormat(QImage::Format_Alpha8));
        const double found = contrast(mainTone(image).rgb(), highlight.rgb());
        QVERIFY2(found >= requiredContrast, qPrintable(QString::number(found)));
    }
}

void tst_Images::applicationIcon()
{
    QImageReader reader(u":/Images/AppIcon.ico"_s);
    QList<int> sizes;
    for (int i = 0; i < reader.imageCount(); ++i) {
        QVERIFY(reader.jumpToImage(i));
        const QImage image = reader.read();
        QCOMPARE(image.width(), image.height());
        sizes.append(image.width());
        compareContrast(image.convertToFormat(QImage::Format_ARGB32));
        if (QTest::currentTestFailed())
            return;
    }
    const QList<int> expected{16, 24, 32, 48, 64, 128};
    QCOMPARE(sizes, expected);
}

void tst_Images::noTwoAlike()
{
    QStringList paths{u":/Images/AppIcon.ico"_s};
    for (const QString &name : iconNames())
        paths.append(pathOf(name));
    for (qsizetype i = 0; i < paths.size(); ++i) {
        for (qsizetype j = i + 1; j < paths.size(); ++j) {
            const double difference = iconDifferenceInPercent(paths.at(i), paths.at(j));
            QVERIFY2(
                difference >= 15,
                qPrintable(
                    u"%1 and %2: %3 %"_s.arg(paths.at(i), paths.at(j)).arg(difference, 0, 'f', 1)));
        }
    }
}

void tst_Images::pairsDifferClearly_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");

    const QList<std::pair<QString, QString>> pairs{{u"Previous_File_C"_s, u"Previous_Folder_C"_s},
                                                   {u"Next_File_C"_s, u"Next_Folder_C"_s},
                                                   {u"Previous_Sub"_s, u"Previous_Sub_Loop"_s},
                                                   {u"Next_Sub"_s, u"Next_Sub_Loop"_s}};
    for (const auto &[one, other] : pairs)
        QTest::newRow(qPrintable(one + ", "_L1 + other)) << pathOf(one) << pathOf(other);
}

// These point in the same direction.
void tst_Images::pairsDifferClearly()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);

    const double difference = iconDifferenceInPercent(one, other);
    QVERIFY2(difference >= 40, qPrintable(QString::number(difference, 'f', 1)));
}

namespace {

int runImagesTest(int argc, char *argv[])
{
    // QIcon looks for an "@2x" only where a screen asks for one.
    qputenv("QT_SCALE_FACTOR", "2");
    return runWindowTest<tst_Images>(argc, argv);
}

} // namespace

TESSALY_REGISTER_TEST(tst_Images, runImagesTest)

#include "tst_images.moc"
