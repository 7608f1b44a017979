// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/testmain.h"

#include <QApplication>
#include <QHash>
#include <QIcon>
#include <QImage>
#include <QImageReader>
#include <QPalette>

#include <algorithm>
#include <cmath>

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

const char *const iconNames[] = {
    "Exit_A",        "Web_Site_B",     "Send_Mail",         "About",        "Change",
    "Play_C",        "Standby_Wakeup", "Previous_Folder_C", "Stop_C",       "Previous_File_C",
    "Pause_C",       "Next_File_C",    "Next_Folder_C",     "Send_Command", "Volume_Max",
    "Volume_Min",    "Unmute",         "Previous_Sub",      "Next_Sub",     "Previous_Sub_Loop",
    "Next_Sub_Loop",
};
static_assert(std::size(iconNames) == 21);

// The icons of the menus have a second picture, for the highlighted line.
const char *const menuIconNames[] = {"Exit_A", "Web_Site_B", "Send_Mail", "About"};

QString pathOf(const char *name)
{
    return ":/Images/"_L1 + QLatin1StringView(name) + ".png"_L1;
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

/// The commonest colour among the opaque pixels; invalid when there are none.
QColor mainTone(const QImage &image)
{
    QHash<QRgb, int> counts;
    QRgb commonest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) == 255 && ++counts[pixel] > counts.value(commonest))
                commonest = pixel;
        }
    }
    return counts.isEmpty() ? QColor() : QColor::fromRgb(commonest);
}

/// Relative luminance after WCAG 2, 0 for black to 1 for white.
double luminance(const QColor &color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
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

/// The same of two icons at 16 pixels, where one that is merely moved counts as the same picture.
double iconDifferenceInPercent(const QString &one, const QString &other)
{
    const QImage still = iconAt16Pixels(one);
    const QImage moving = iconAt16Pixels(other);
    double least = 100;
    for (int dy = -2; dy <= 2; ++dy) {
        for (int dx = -2; dx <= 2; ++dx) {
            const QImage moved = moving.copy(QRect(QPoint(dx, dy), moving.size()));
            least = std::min(least, differenceInPercent(still, moved));
        }
    }
    return least;
}

void addPictures()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    for (const char *name : iconNames)
        QTest::newRow(name) << pathOf(name) << iconSize;
    QTest::newRow("logo") << pathOf("Help_Panel_New_Logo") << logoSize;
}

void compareContrast(const QImage &image)
{
    const QColor tone = mainTone(image);
    QVERIFY2(tone.isValid(), "nothing is opaque");
    for (const char *background : {"#ffffff", "#efefef", "#353535", "#2b2b2b", "#1e1e1e"}) {
        const double found = contrast(tone, QColor(QLatin1StringView(background)));
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
    void contrastFormula();

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

void tst_Images::contrastFormula()
{
    const auto rounded = [](const char *one, const char *other) {
        return QString::number(
            contrast(QColor(QLatin1StringView(one)), QColor(QLatin1StringView(other))), 'f', 2);
    };
    QCOMPARE(rounded("#000000", "#ffffff"), u"21.00"_s);
    QCOMPARE(rounded("#ffffff", "#000000"), u"21.00"_s);
    QCOMPARE(rounded("#777777", "#ffffff"), u"4.48"_s);
    QCOMPARE(rounded("#ff0000", "#ffffff"), u"4.00"_s);
    QCOMPARE(rounded("#3d90ca", "#3d90ca"), u"1.00"_s);
}

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
    for (const char *name : menuIconNames)
        QTest::newRow(name) << pathOf(name) << pathOf(name).replace(".png"_L1, "_Active.png"_L1);
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
        const double found = contrast(mainTone(image), highlight);
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
    for (const char *name : iconNames)
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
    QTest::addColumn<int>("percent");

    const auto pair = [](const char *one, const char *other, int percent) {
        QTest::addRow("%s, %s", one, other) << pathOf(one) << pathOf(other) << percent;
    };
    pair("Volume_Min", "Volume_Max", 15);
    pair("Volume_Min", "Unmute", 15);
    pair("Volume_Max", "Unmute", 15);
    pair("Previous_File_C", "Previous_Folder_C", 40);
    pair("Next_File_C", "Next_Folder_C", 40);
    pair("Previous_Sub", "Previous_Sub_Loop", 40);
    pair("Next_Sub", "Next_Sub_Loop", 40);
    pair("Previous_File_C", "Next_File_C", 15);
    pair("Previous_Folder_C", "Next_Folder_C", 15);
    pair("Previous_Sub", "Next_Sub", 15);
    pair("Previous_Sub_Loop", "Next_Sub_Loop", 15);
}

void tst_Images::pairsDifferClearly()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);
    QFETCH(const int, percent);

    const double difference = iconDifferenceInPercent(one, other);
    QVERIFY2(difference >= percent, qPrintable(QString::number(difference, 'f', 1)));
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
