#pragma once

#include <QLocale>
#include <QString>

/// A locale's short date with a four-digit year, numeric month and day, and every run of separators made one
/// character, in the locale's own order; the C locale gives year, month, day.
inline QString rovidDatumFormatum(const QLocale& nyelv) {
    if (nyelv.language() == QLocale::C) return QStringLiteral("yyyy.MM.dd");
    const QString minta = nyelv.dateFormat(QLocale::ShortFormat);
    QString formatum;
    bool elvalaszto = false;
    for (const QString& resz : {QStringLiteral("y"), QStringLiteral("M"), QStringLiteral("d")})
        if (!minta.contains(resz)) return QStringLiteral("yyyy.MM.dd");
    for (qsizetype i = 0; i < minta.size(); ++i) {
        const QChar c = minta[i];
        if (c != u'y' && c != u'M' && c != u'd') {
            elvalaszto = true;
            continue;
        }
        if (i > 0 && minta[i - 1] == c) continue;
        if (elvalaszto && !formatum.isEmpty()) formatum += u'.';
        elvalaszto = false;
        formatum += c == u'y' ? QStringLiteral("yyyy") : QString(2, c);
    }
    return formatum;
}
