#include "store/Dialect.h"

#include <QDate>

QString Dialect::TipSql(TipCamp tip, int marime) const {
    const bool lite = EsteSQLite();
    switch (tip) {
    case TipCamp::Cheie:
        return lite ? QStringLiteral("INTEGER") : QStringLiteral("BIGINT");
    case TipCamp::Byte:
    case TipCamp::Boolean:
        return lite ? QStringLiteral("INTEGER") : QStringLiteral("SMALLINT");
    case TipCamp::Integer:
    case TipCamp::Long:
        return QStringLiteral("INTEGER");
    case TipCamp::Single:
        return QStringLiteral("REAL");
    case TipCamp::Currency:
    case TipCamp::Zecimal:
        return lite ? QStringLiteral("NUMERIC") : QStringLiteral("NUMERIC(19,4)");
    case TipCamp::Data:
        return QStringLiteral("DATE");
    case TipCamp::Text:
        return lite ? QStringLiteral("TEXT") : QStringLiteral("VARCHAR(%1)").arg(marime > 0 ? marime : 255);
    case TipCamp::Memo:
        return QStringLiteral("TEXT");
    }
    return QStringLiteral("TEXT");
}

QVariant Dialect::Parametru(const QVariant& v) const {
    if (!v.isValid() || v.isNull()) return QVariant();
    if (v.metaType() == QMetaType::fromType<Bani>()) {
        const Bani b = v.value<Bani>();
        return EsteSQLite() ? QVariant(b.ToDouble()) : QVariant(b.Text());
    }
    switch (v.typeId()) {
    case QMetaType::QDate:
        // An empty date box stands for no date; an empty text would read back as a date on neither engine.
        return v.toDate().isValid() ? QVariant(v.toDate().toString(Qt::ISODate)) : QVariant();
    case QMetaType::Bool:
        return v.toBool() ? 1 : 0;
    default:
        return v;
    }
}

QString PrefixLike(const QString& text) {
    QString t = text;
    t.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    t.replace(QLatin1Char('%'), QStringLiteral("\\%"));
    t.replace(QLatin1Char('_'), QStringLiteral("\\_"));
    return t + QLatin1Char('%');
}
