// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "tests/support/languagefiles.h"

#include "tests/support/folders.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

QString TranslatedText::key() const
{
    return context + ": "_L1 + source + (comment.isEmpty() ? u""_s : u" [%1]"_s.arg(comment));
}

QString LanguageFile::translated(const QString &context, const QString &source) const
{
    for (const TranslatedText &text : texts) {
        if (text.context == context && text.source == source)
            return text.translation;
    }
    return {};
}

QStringList languageCodes()
{
    QStringList codes;
    const QDir folder(sourcePath(u"translations"_s));
    for (const QString &name : folder.entryList({u"LanguageData_*.ts"_s}, QDir::Files, QDir::Name))
        codes.append(name.section(u'_', 1).chopped(3));
    return codes;
}

QString languageFileName(const QString &code)
{
    return u"translations/LanguageData_%1.ts"_s.arg(code);
}

LanguageFile readLanguageFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    LanguageFile result;
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto element = xml.name();
        if (element == "TS"_L1) {
            result.language = xml.attributes().value("language"_L1).toString();
        } else if (element == "name"_L1) {
            context = xml.readElementText();
        } else if (element == "message"_L1) {
            result.texts.append({context, {}, {}, {}, {}});
        } else if (element == "source"_L1) {
            result.texts.last().source = xml.readElementText();
        } else if (element == "comment"_L1) {
            result.texts.last().comment = xml.readElementText();
        } else if (element == "translation"_L1) {
            result.texts.last().state = xml.attributes().value("type"_L1).toString();
            result.texts.last().translation
                = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    if (xml.hasError())
        qFatal("%s:%lld: %s", qPrintable(path), xml.lineNumber(), qPrintable(xml.errorString()));
    return result;
}

LanguageFile languageFile(const QString &code)
{
    return readLanguageFile(sourcePath(languageFileName(code)));
}
