// Data rows of the form "this text becomes that one", named by the text. For tests only.
#pragma once

#include <QList>
#include <QString>
#include <QTest>

#include <utility>

namespace Quorbel::Test {

/// Adds the columns "text" and "expected", and a row a pair.
inline void addRows(const QList<std::pair<QString, QString>>& pairs)
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    for (const auto& [text, expected] : pairs)
        QTest::newRow(qPrintable(u'\'' + text + u'\'')) << text << expected;
}

/// Further rows, of texts that all become the same.
inline void addRows(const QStringList& texts, const QString& expected)
{
    for (const QString& text : texts)
        QTest::newRow(qPrintable(u'\'' + text + u'\'')) << text << expected;
}

}  // namespace Quorbel::Test
