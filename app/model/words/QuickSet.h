// A named set of quick keywords. Thread: any. A plain value with pure functions.
#pragma once

#include <QList>
#include <QStringList>

#include <optional>

namespace Quorbel {

struct QuickSet {
    QString name{};
    QStringList keywords{};  ///< as they are typed: with their parents, where they have some ("Places|Zug")
    bool operator==(const QuickSet&) const = default;
};

namespace QuickSets {

/// What a setting holds of them, and back; of a text that is none, and of entries that make no sense, nothing.
QString toText(const QList<QuickSet>& sets);
QList<QuickSet> fromText(const QString& text);
/// Keywords that were used just now, the newest first, in front of those used before; each once, at most `most`.
QStringList used(const QStringList& now, const QStringList& before, qsizetype most);
/// Where they stand: those that are shown already stay in their order, for a hand that knows them by their digits; new
/// ones come in front.
QStringList placed(const QStringList& used, const QStringList& shown);

}  // namespace QuickSets

}  // namespace Quorbel
