// File names from a pattern of tokens. Thread: any. Pure string logic: touches no file.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include <functional>

namespace Quorbel::FileNaming {

struct Token {
    QString label{};  ///< shown to the user
    QString placeholder{};  ///< stands in a pattern, "%Date%"
    bool operator==(const Token&) const = default;
};

/// The tokens, in the order of display and of substitution.
const QList<Token>& tokens();

/// The base name (without extension) that the pattern gives for these values, keyed by placeholder; never empty.
/// strict keeps only ASCII letters, digits, "-" and "_" of each value.
QString render(const QString& pattern, const QMap<QString, QString>& values, bool strict);
/// The same for a text whose values stand in it already: no double underscores, nothing loose at the ends.
QString tidied(QString name);
/// One value made safe for a file name; may be empty.
QString sanitizeComponent(const QString& value, bool strict);
/// The first of "base.ext", "base-2.ext", "base-3.ext", … that is not taken. `ext` is without dot, may be empty.
QString uniqueFileName(const QString& base, const QString& ext, const std::function<bool(const QString&)>& isTaken);

}  // namespace Quorbel::FileNaming
