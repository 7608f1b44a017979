// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "simulator/fault.h"

#include "simulator/faults/garbagefault.h"
#include "simulator/faults/hangupfault.h"
#include "simulator/faults/markupfault.h"
#include "simulator/faults/megabytefault.h"
#include "simulator/faults/noanswerfault.h"
#include "simulator/faults/refusalfault.h"
#include "simulator/faults/singlebytesfault.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template<typename T>
std::unique_ptr<Fault> make()
{
    return std::make_unique<T>();
}

struct FaultKind
{
    const char *name;
    const char *description;
    std::unique_ptr<Fault> (*make)();
};

// clang-format off
constexpr FaultKind kinds[] = {
    {"no-answer",    "commands are obeyed and never answered",               make<NoAnswerFault>},
    {"single-bytes", "answers come byte by byte, with pauses",               make<SingleBytesFault>},
    {"garbage",      "bytes without meaning stand between the answers",      make<GarbageFault>},
    {"hang-up",      "the link is cut in the middle of each answer",         make<HangUpFault>},
    {"megabyte",     "each answer is a megabyte long",                       make<MegabyteFault>},
    {"markup",       "answers contain markup and pictures to load",          make<MarkupFault>},
    {"refuse",       "nobody is reached for three seconds after the start\n"
     "                and, over TCP/IP, after each connection",               make<RefusalFault>},
};
// clang-format on

} // namespace

QStringList faultNames()
{
    QStringList names;
    for (const FaultKind &kind : kinds)
        names.append(QString::fromLatin1(kind.name));
    return names;
}

QString faultDescriptions()
{
    QString text;
    for (const FaultKind &kind : kinds) {
        text += u"  %1%2\n"_s.arg(QString::fromLatin1(kind.name), -14)
                    .arg(QString::fromLatin1(kind.description));
    }
    return text;
}

std::unique_ptr<Fault> makeFault(const QString &name)
{
    for (const FaultKind &kind : kinds) {
        if (name == QLatin1StringView(kind.name))
            return kind.make();
    }
    return nullptr;
}
