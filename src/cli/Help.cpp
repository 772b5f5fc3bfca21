#include "cli/Command.h"
#include "cli/GlobalOptions.h"

namespace sargan::cli {

namespace {

const QString purpose = QStringLiteral("Sargan keeps a diver's records: logbook and registers.");

QString optionHead(const OptionSpec& option) {
    const QString name = QLatin1String(option.name);
    return option.takes == Takes::Nothing ? name : name + u' ' + QString::fromUtf8(option.value);
}

QString optionLines(std::span<const OptionSpec> options) {
    QString lines;
    for (const OptionSpec& option : options)
        lines +=
            QStringLiteral("  %1  %2\n").arg(optionHead(option), -22).arg(QString::fromUtf8(option.help));
    return lines;
}

/// The list of all commands has a line for each.
QString firstSentence(const QString& summary) {
    const qsizetype end = summary.indexOf(QLatin1String(". "));
    return end < 0 ? summary : summary.left(end + 1);
}

/// Text for a manual page: no line may begin like a request, and hyphens are meant as they stand.
QString roff(QString text) {
    text.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    return text.startsWith(u'.') || text.startsWith(u'\'') ? QStringLiteral("\\&") + text : text;
}

QString roffOptions(std::span<const OptionSpec> options) {
    QString page;
    for (const OptionSpec& option : options)
        page += QStringLiteral(".TP\n\\fB%1\\fR\n%2\n")
                    .arg(roff(optionHead(option)), roff(QString::fromUtf8(option.help)));
    return page;
}

}  // namespace

QString usageLine(const Command& command) {
    return QStringLiteral("sargan %1 %2")
        .arg(QLatin1String(command.name), QString::fromUtf8(command.usage))
        .trimmed();
}

QString overallHelp() {
    QString help = purpose + QStringLiteral(
                                 "\n\nusage: sargan [FILE…]\n       sargan COMMAND …\n\n"
                                 "Without a command the desktop opens. Commands:\n\n");
    for (const Command& command : commands())
        help += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -12)
                    .arg(firstSentence(QString::fromUtf8(command.summary)));
    help += QStringLiteral("\nBefore or after any command:\n\n") + optionLines(globalOptionSpecs());
    help += QStringLiteral(
        "\nExit status: 0 done, 1 failed (nothing was written), 2 wrong usage.\n"
        "sargan COMMAND --help tells more about a command.");
    return help;
}

QString helpFor(const Command& command) {
    QString help =
        QStringLiteral("usage: %1\n\n%2").arg(usageLine(command), QString::fromUtf8(command.summary));
    if (!command.options.empty()) help += QStringLiteral("\n\n") + optionLines(command.options).chopped(1);
    return help;
}

QString manualPage() {
    QString page = QStringLiteral(
                       ".TH SARGAN 1\n.SH NAME\nsargan \\- a diver's records\n.SH SYNOPSIS\n"
                       ".B sargan\n[\\fIFILE\\fR ...]\n.br\n.B sargan\n\\fICOMMAND\\fR ...\n"
                       ".SH DESCRIPTION\n%1\nWithout a command the desktop opens.\n.SH COMMANDS\n")
                       .arg(roff(purpose));
    for (const Command& command : commands()) {
        page += QStringLiteral(".SS %1\n%2\n")
                    .arg(roff(usageLine(command)), roff(QString::fromUtf8(command.summary)));
        page += roffOptions(command.options);
    }
    page += QStringLiteral(".SH OPTIONS\nBefore or after any command:\n") + roffOptions(globalOptionSpecs());
    page += QStringLiteral(".SH EXIT STATUS\n0 done, 1 failed (nothing was written), 2 wrong usage.");
    return page;
}

}  // namespace sargan::cli
