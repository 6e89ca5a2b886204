#include "PvDiagnostic.h"

#include <tuple>

QString PvDiagnostic::severityName(Severity severity)
{
    return severity == Error ? QStringLiteral("error") : QStringLiteral("warning");
}

QString PvDiagnostic::toString() const
{
    // One arg() call: a "%1" in the file name or message must stay as written.
    QString text = QStringLiteral("%1:%2:%3: %4: %5").arg(file, QString::number(line), QString::number(column), severityName(severity), message);
    if (!suggestion.isEmpty())
        text += QStringLiteral(" (did you mean \"%1\"?)").arg(suggestion);
    return text;
}

bool operator==(const PvDiagnostic& a, const PvDiagnostic& b)
{
    return std::tie(a.file, a.line, a.column, a.severity, a.message, a.attribute, a.found, a.suggestion, a.place, a.category)
        == std::tie(b.file, b.line, b.column, b.severity, b.message, b.attribute, b.found, b.suggestion, b.place, b.category);
}

QDebug operator<<(QDebug debug, const PvDiagnostic& diagnostic)
{
    QDebugStateSaver saver(debug);
    return debug.noquote().nospace() << diagnostic.toString();
}
