// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "sender/senderoptions.h"

#include "app/applicationobjects.h"
#include "catalogue/devicecatalogue.h"
#include "catalogue/nearesttexts.h"
#include "sender/commandlist.h"
#include "sender/commandwords.h"
#include "sender/limits.h"
#include "sender/script.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

SenderOptions failure(const QString &text)
{
    SenderOptions options;
    options.action = SenderOptions::Action::Fail;
    options.text = text;
    return options;
}

SenderOptions output(const QString &text)
{
    SenderOptions options;
    options.action = SenderOptions::Action::Print;
    options.text = text;
    return options;
}

/// All the options, so that the parser and those who ask it name the same ones.
struct OptionNames
{
    QCommandLineOption help{{u"h"_s, u"help"_s}, u"Show this help, and end."_s};
    QCommandLineOption version{{u"v"_s, u"version"_s}, u"Show the version, and end."_s};
    QCommandLineOption list{
        u"list"_s, u"Show the models; with --model, its commands and their ranges. And end."_s};
    QCommandLineOption json{u"json"_s, u"With --list: in JSON."_s};
    QCommandLineOption model{u"model"_s, u"The device's model."_s, u"NAME"_s};
    QCommandLineOption id{u"id"_s, u"The player ID that is addressed."_s, u"N"_s};
    QCommandLineOption port{u"port"_s, u"The serial port of the device, such as /dev/ttyUSB0."_s,
                            u"PORT"_s};
    QCommandLineOption baud{
        u"baud"_s, u"The baud rate, one of the model's; else the one preset for it."_s, u"RATE"_s};
    QCommandLineOption host{u"host"_s, u"The IP address or name of the device."_s, u"HOST"_s};
    QCommandLineOption timeout{
        u"timeout"_s, u"Give up when connecting, or sending a frame, takes longer (10000)."_s,
        u"MS"_s};
    QCommandLineOption wait{
        u"wait"_s, u"Wait so long behind each command, and print what the device answers."_s,
        u"MS"_s};
    QCommandLineOption textForm{u"text"_s, u"Answers as text; what is used without a form."_s};
    QCommandLineOption hex{u"hex"_s, u"Answers in hexadecimal; --dry-run does so anyway."_s};
    QCommandLineOption dec{u"dec"_s, u"Answers and the bytes of --dry-run in decimal."_s};
    QCommandLineOption dryRun{u"dry-run"_s,
                              u"Print the bytes, a line for each command, and open nothing."_s};
    QCommandLineOption script{
        u"script"_s, u"Send the commands of that file, one a line; - is the standard input."_s,
        u"FILE"_s};
    QCommandLineOption gap{u"gap"_s, u"The least time between two commands (50)."_s, u"MS"_s};
    QCommandLineOption repeat{u"repeat"_s, u"Do all of it N times (1)."_s, u"N"_s};
    QCommandLineOption log{
        u"log"_s, u"Append a line to that file for whatever is sent and received."_s, u"FILE"_s};

    QList<QCommandLineOption> all() const
    {
        return {help, version,  list, json, model,  id,     port, baud,   host, timeout,
                wait, textForm, hex,  dec,  dryRun, script, gap,  repeat, log};
    }
};

const QString description
    = u"Sends commands to Ambrette devices, over a serial port or TCP/IP, as the console Tessaly\n"
      "does. For scripts and timers.\n\n"
      "  tessaly-send --model \"Tempo Deck\" --id 3 --port /dev/ttyUSB0 folder 12\n"
      "  tessaly-send --model \"Vistar Show - SV500 (TCP/IP)\" --host 192.168.1.20 \\\n"
      "      --wait 500 request \"Player Status\"\n\n"
      "Commands have the console's names, in any case, with hyphens for blanks if you like:\n"
      "play, next-file, folder 200, volume 40, change-id 12, set-date/time. What the console\n"
      "offers in a list is named behind it: request LABEL, source LABEL [NUMBER [OPTION]],\n"
      "subtitles LANGUAGE or TRACK. --list shows what a model knows.\n\n"
      "A script has one command a line, \"wait MS\" for a pause, and comments behind #. It is\n"
      "checked whole before anything is sent.\n\n"
      "Without --model, --id, --port or --host, the console's saved settings are used.\n\n"
      "Exit status: 0 when all is sent and, with --wait, something was answered; 1 when nothing\n"
      "was answered; 2 for a mistake in the command line or script, and nothing was sent; 3 when\n"
      "the link cannot be opened; 4 when it fails later, or the output or the log does; 128 and\n"
      "the signal's number when a signal ends it, which happens between two frames."_s;

QString saved(const QString &text)
{
    return text == configPlaceholder ? QString() : text;
}

/// Reads the command line piece by piece. Each piece returns false when it is wrong; the error is
/// noted then.
class OptionReader
{
public:
    OptionReader(const QCommandLineParser &parser, const OptionNames &names,
                 const Surroundings &surroundings)
        : m_parser(parser)
        , m_names(names)
        , m_surroundings(surroundings)
    {
    }

    SenderOptions read()
    {
        if (!(readModel() && readPlayerId() && readTimes() && readForms() && readSteps()))
            return failure(m_error);
        if (m_parser.isSet(m_names.dryRun))
            m_options.action = SenderOptions::Action::DryRun;
        if (!(m_options.model.transport == TransportKind::Serial ? readPort() : readHost()))
            return failure(m_error);
        if (!m_fromSettings.isEmpty())
            m_options.note
                = "using the console's saved settings: "_L1 + m_fromSettings.join(u", "_s);
        return m_options;
    }

private:
    bool reject(const QString &error)
    {
        m_error = error;
        return false;
    }

    /// The console's settings; as if all were unset when there are none.
    const SavedSettings &settings()
    {
        if (!m_settings) {
            m_settings = m_surroundings.savedSettings();
            if (!m_settings)
                m_settings.emplace().address.fill(std::nullopt);
        }
        return *m_settings;
    }

    bool readModel()
    {
        const DeviceCatalogue catalogue = buildDeviceCatalogue();
        const bool isGiven = m_parser.isSet(m_names.model);
        const QString name = isGiven ? m_parser.value(m_names.model) : saved(settings().model);
        if (!isGiven && name.isEmpty())
            return reject(u"Which model? Give --model NAME; --list shows the models."_s);
        const DeviceModel *model = findModel(catalogue, name);
        if (!model)
            return reject((isGiven ? "There is no model "_L1
                                   : "The console's saved settings name an unknown model, "_L1)
                          + didYouMean(name, modelNames(catalogue)));
        m_options.model = *model;
        if (!isGiven)
            m_fromSettings.append("model "_L1 + model->name);
        return true;
    }

    bool readPlayerId()
    {
        const DeviceModel &model = m_options.model;
        const NumberRange range{model.minPlayerId, model.maxPlayerId};
        if (m_parser.isSet(m_names.id)) {
            const QString text = m_parser.value(m_names.id);
            const std::optional<int> number = numberInRange(text, range);
            if (!number) {
                return reject(
                    u"\"%1\" is no player ID of %2, %3."_s.arg(text, model.name, rangeText(range)));
            }
            m_options.playerId = *number;
            return true;
        }
        m_options.playerId = range.first;
        if (range.first == range.last)
            return true;
        if (const auto number = numberInRange(saved(settings().playerId), range)) {
            m_options.playerId = *number;
            m_fromSettings.append(u"player ID %1"_s.arg(*number));
        }
        return true;
    }

    bool readNumber(const QCommandLineOption &option, NumberRange range, const QString &what,
                    int &number)
    {
        if (!m_parser.isSet(option))
            return true;
        const QString text = m_parser.value(option);
        const std::optional<int> read = numberInRange(text, range);
        if (!read) {
            return reject(u"--%1: \"%2\" is no %3, %4."_s.arg(option.names().constFirst(), text,
                                                              what, rangeText(range)));
        }
        number = *read;
        return true;
    }

    bool readTime(const QCommandLineOption &option, NumberRange range,
                  std::chrono::milliseconds &time)
    {
        int number = static_cast<int>(time.count());
        const bool isRead = readNumber(option, range, u"number of milliseconds"_s, number);
        time = std::chrono::milliseconds(number);
        return isRead;
    }

    bool readTimes()
    {
        std::chrono::milliseconds wait{};
        if (!readTime(m_names.gap, pauseLimits, m_options.gap)
            || !readTime(m_names.timeout, timeoutLimits, m_options.timeout)
            || !readTime(m_names.wait, pauseLimits, wait)
            || !readNumber(m_names.repeat, repeatLimits, u"number of times"_s,
                           m_options.repetitions)) {
            return false;
        }
        if (m_parser.isSet(m_names.wait))
            m_options.wait = wait;
        return true;
    }

    bool readForms()
    {
        const bool isText = m_parser.isSet(m_names.textForm);
        const bool isHex = m_parser.isSet(m_names.hex);
        const bool isDec = m_parser.isSet(m_names.dec);
        if (int(isText) + int(isHex) + int(isDec) > 1)
            return reject(u"--text, --hex and --dec: one of them is enough."_s);
        if (isHex)
            m_options.answerForm = ByteForm::Hex;
        if (isDec)
            m_options.answerForm = m_options.frameForm = ByteForm::Dec;
        for (const QCommandLineOption &path : {m_names.log, m_names.script}) {
            if (m_parser.isSet(path) && m_parser.value(path).isEmpty())
                return reject(u"--%1 needs a path."_s.arg(path.names().constFirst()));
        }
        m_options.logPath = m_parser.value(m_names.log);
        return true;
    }

    bool readSteps()
    {
        const QStringList words = m_parser.positionalArguments();
        if (m_parser.isSet(m_names.script)) {
            if (!words.isEmpty())
                return reject(u"Either a command or --script, not both."_s);
            return readScriptFile(m_parser.value(m_names.script));
        }
        if (words.isEmpty()) {
            return reject(
                u"Which command? --model \"%1\" --list shows them."_s.arg(m_options.model.name));
        }
        const WordsMeaning meaning = readCommandWords(m_options.model, words);
        if (!meaning.command)
            return reject(meaning.error);
        m_options.steps.append(*meaning.command);
        return true;
    }

    bool readScriptFile(const QString &path)
    {
        const FileContent content = m_surroundings.readFile(path);
        const QString name = path == "-"_L1 ? u"standard input"_s : path;
        if (!content.error.isEmpty())
            return reject(u"%1: %2."_s.arg(name, content.error));
        const Script script = readScript(m_options.model, name, content.bytes);
        m_options.steps = script.steps;
        return script.errors.isEmpty() || reject(script.errors.join(u'\n'));
    }

    bool isDryRun() const { return m_options.action == SenderOptions::Action::DryRun; }

    bool readPort()
    {
        const DeviceModel &model = m_options.model;
        if (m_parser.isSet(m_names.host)) {
            return reject(u"%1 is driven over a serial port: give --port instead of --host."_s.arg(
                model.name));
        }
        m_options.baudRate = model.defaultBaudRate;
        if (m_parser.isSet(m_names.port)) {
            m_options.port = m_parser.value(m_names.port);
        } else if (!isDryRun()) {
            m_options.port = saved(settings().port);
            // The rate goes with the port: who names the port has said all.
            const qint32 rate = settings().baudRate.toInt();
            if (model.baudRates.contains(rate))
                m_options.baudRate = rate;
            m_fromSettings.append("port "_L1 + m_options.port);
        }
        if (m_parser.isSet(m_names.baud)) {
            const QString text = m_parser.value(m_names.baud);
            m_options.baudRate = text.toInt();
            if (!model.baudRates.contains(m_options.baudRate)) {
                return reject(u"\"%1\" is no baud rate of %2: %3."_s.arg(text, model.name,
                                                                         baudRatesText(model)));
            }
        } else if (!m_parser.isSet(m_names.port) && !isDryRun()) {
            m_fromSettings.append(u"%1 baud"_s.arg(m_options.baudRate));
        }
        if (m_options.port.isEmpty() && !isDryRun())
            return reject(u"Which serial port? Give --port PORT, such as /dev/ttyUSB0."_s);
        return true;
    }

    bool readHost()
    {
        const DeviceModel &model = m_options.model;
        for (const QCommandLineOption &option : {m_names.port, m_names.baud}) {
            if (m_parser.isSet(option)) {
                return reject(u"%1 is driven over TCP/IP: give --host, and no --%2."_s.arg(
                    model.name, option.names().constFirst()));
            }
        }
        if (m_parser.isSet(m_names.host)) {
            m_options.host = m_parser.value(m_names.host);
        } else if (!isDryRun()) {
            m_options.host = savedHost();
            m_fromSettings.append("host "_L1 + m_options.host);
        }
        if (m_options.host.isEmpty() && !isDryRun())
            return reject(u"Which device? Give --host HOST, its IP address or name."_s);
        return true;
    }

    /// Empty when a part is missing.
    QString savedHost()
    {
        QStringList parts;
        for (const std::optional<int> part : settings().address) {
            if (!part)
                return {};
            parts.append(QString::number(*part));
        }
        return parts.join(u'.');
    }

    const QCommandLineParser &m_parser;
    const OptionNames &m_names;
    const Surroundings &m_surroundings;
    std::optional<SavedSettings> m_settings;
    QStringList m_fromSettings;
    SenderOptions m_options;
    QString m_error;
};

SenderOptions listOutput(const QCommandLineParser &parser, const OptionNames &names)
{
    const bool isJson = parser.isSet(names.json);
    const DeviceCatalogue catalogue = buildDeviceCatalogue();
    if (!parser.positionalArguments().isEmpty()) {
        return failure(u"Unexpected argument \"%1\" beside --list."_s.arg(
            parser.positionalArguments().constFirst()));
    }
    if (!parser.isSet(names.model))
        return output(isJson ? modelsJson(catalogue) : modelsText(catalogue));
    const QString name = parser.value(names.model);
    const DeviceModel *model = findModel(catalogue, name);
    if (!model)
        return failure("There is no model "_L1 + didYouMean(name, modelNames(catalogue)));
    return output(isJson ? commandsJson(*model) : commandsText(*model));
}

} // namespace

SenderOptions parseSenderOptions(const QStringList &arguments, const Surroundings &surroundings)
{
    const OptionNames names;
    QCommandLineParser parser;
    parser.setApplicationDescription(description);
    parser.addOptions(names.all());
    parser.addPositionalArgument(u"command"_s, u"The command, and its values behind it."_s,
                                 u"[COMMAND [VALUE...]]"_s);

    if (!parser.parse(arguments)) {
        static const QRegularExpression negative(u"^-\\d+$"_s);
        const qsizetype place = arguments.indexOf(negative);
        if (place > 0)
            return failure(u"\"%1\" is no value: none is below 0."_s.arg(arguments.at(place)));
        return failure(parser.errorText());
    }
    if (parser.isSet(names.help))
        return output(parser.helpText());
    if (parser.isSet(names.version)) {
        return output(QCoreApplication::applicationName() + u' '
                      + QCoreApplication::applicationVersion() + u'\n');
    }
    if (parser.isSet(names.list))
        return listOutput(parser, names);
    if (parser.isSet(names.json))
        return failure(u"--json goes with --list."_s);
    return OptionReader(parser, names, surroundings).read();
}
