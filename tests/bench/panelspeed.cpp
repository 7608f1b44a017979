// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/bench/speeds.h"

#include "app/applicationobjects.h"
#include "tests/bench/speedtable.h"
#include "tests/bench/turns.h"
#include "tests/support/consolewindow.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QVBoxLayout>

#include <memory>

namespace {

// Those that a model fills.
constexpr const char *listNames[] = {
    "comboBox_Baudrate",
    "comboBox_ID",
    "comboBox_Change_ID",
    "comboBox_Folder",
    "comboBox_Request",
    "comboBox_Other_Command",
    "comboBox_Source_Of_Playback",
    "comboBox_Ref_Of_Playback",
    "comboBox_Option_Of_Playback",
    "comboBox_Webradio_Ref_Of_Playback",
    "comboBox_Subtitles_Type",
    "comboBox_Subtitles_Value",
};

using Rows = std::vector<QStringList>; // of each list

Rows rowsOf(const ConsoleWindow &console)
{
    Rows rows;
    for (const char *name : listNames) {
        const auto *list = console.find<QComboBox>(name);
        QStringList texts;
        for (int row = 0; row < list->count(); ++row)
            texts.append(list->itemText(row));
        rows.push_back(texts);
    }
    return rows;
}

/// Nothing but the same number of lists.
class BareLists
{
public:
    BareLists()
    {
        auto *layout = new QVBoxLayout(&m_window);
        for (std::size_t i = 0; i < std::size(listNames); ++i) {
            m_lists.push_back(new QComboBox);
            layout->addWidget(m_lists.back());
        }
        m_window.show();
    }

    void fill(const Rows &rows)
    {
        for (QComboBox *list : m_lists)
            list->clear();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (!rows[i].isEmpty())
                m_lists[i]->addItems(rows[i]);
        }
    }

private:
    QWidget m_window;
    std::vector<QComboBox *> m_lists;
};

/// Lets the windows be laid out and drawn.
void settle()
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

} // namespace

void measurePanels(SpeedTable &table, bool quick)
{
    constexpr double longestTime = 16e6; // in ns; a picture of a screen with 60 of them a second
    ConsoleWindow console;
    BareLists bare;
    std::vector<Rows> rows;
    for (int row = 0; row < deviceCatalogue.size(); ++row) {
        console.selectModel(row);
        rows.push_back(rowsOf(console));
    }

    double longest = 0;
    const auto count = static_cast<int>(deviceCatalogue.size());
    for (int row = 0; row < count; ++row) {
        const int other = (row + count - 1) % count;
        const Turns took = takeTurns(
            quick ? 5 : 50,
            [&] {
                console.selectModel(other);
                settle();
                const double drawn = processorTimeOf([&] {
                    console.selectModel(row);
                    settle();
                });
                console.selectModel(other);
                settle();
                const double time = processorTimeOf([&] { console.selectModel(row); });
                settle();
                longest = qMax(longest, drawn);
                return time;
            },
            [&] {
                bare.fill(rows[static_cast<std::size_t>(other)]);
                settle();
                return processorTimeOf([&] { bare.fill(rows[static_cast<std::size_t>(row)]); });
            });
        const QByteArray name = deviceCatalogue.at(row).name.toUtf8();
        table.compare("choosing " + name + " : bare filling", took.ours, took.yardstick, 1.5,
                      SpeedTable::Unit::Nanoseconds);
    }
    table.check("choosing a model and drawing it, longest", longest, longestTime,
                SpeedTable::Unit::Nanoseconds);
}
