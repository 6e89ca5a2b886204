#include "PvReportFileNames.h"

#include <QCryptographicHash>
#include <QRegularExpression>

namespace {
// Long names are cut, with the hash keeping them apart.
constexpr int maximumLength = 80;

bool isSafe(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z')) || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'))
        || (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == QLatin1Char('-') || c == QLatin1Char('_') || c == QLatin1Char('.');
}

bool isReserved(const QString& stem)
{
    // Device names that Windows file systems refuse, with or without a suffix.
    static const QRegularExpression devices(QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$"), QRegularExpression::CaseInsensitiveOption);
    return devices.match(stem).hasMatch();
}

QString hashOf(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex().left(8));
}
}

QString PvReportFileNames::stem(const QString& name)
{
    QString safe;
    for (const QChar c : name)
        safe += isSafe(c) ? c : QLatin1Char('_');
    // No hidden files, no "." or "..".
    while (safe.startsWith(QLatin1Char('.')))
        safe[0] = QLatin1Char('_');
    QString candidate = safe.left(maximumLength);
    if (candidate != name || candidate.isEmpty() || isReserved(candidate))
        candidate = (candidate.isEmpty() ? QStringLiteral("product") : candidate) + QLatin1Char('-') + hashOf(name);
    const QString base = candidate;
    for (int n = 2; m_taken.contains(candidate.toLower()); ++n)
        candidate = base + QLatin1Char('-') + QString::number(n);
    m_taken.insert(candidate.toLower());
    return candidate;
}
