// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/fuzz/fuzztarget.h"

#include <QByteArray>
#include <QDirIterator>
#include <QFile>

#include <cstdio>

/// Gives every file of the folders named to the fuzz target, so that the inputs of old findings are
/// tried with every compiler.
int main(int argc, char *argv[])
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QFile::decodeName(argv[i]), QDir::Files);
        for (; files.hasNext(); ++count) {
            QFile file(files.next());
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(file.fileName()));
                return 1;
            }
            const QByteArray input = file.readAll();
            std::fprintf(stderr, "%s\n", qPrintable(file.fileName()));
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()),
                                   static_cast<size_t>(input.size()));
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
