// Where a keyword stands in a tree of keywords: "Places|France|Paris" is the path of the keyword Paris. Several
// programs keep such paths, each in a tag and a form of its own; here all are one form. Thread: any. Pure.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Quorbel::KeywordPath {

/// A tag that holds paths.
struct Home {
    QString tag{};  ///< as it is assigned: "XMP-lr:HierarchicalSubject"
    QChar separator{};  ///< between the elements of a stored path
    bool isMadeForNew = false;  ///< a photo without any path gets this home when it gains one
};

/// Those whose items are paths that can be written; the first ones are the widest read.
const QList<Home>& homes();
/// A home that is only read: one text of nested elements for all keywords.
QString treeTag();

/// From the top down.
QStringList elements(const QString& path);
/// The keyword that the path leads to.
QString keyword(const QString& path);
/// "Places|France" of "Places|France|Paris"; "" where there is none.
QString parents(const QString& path);
/// For the user: "Places ▸ France ▸ Paris".
QString shown(const QString& path);

/// What somebody typed as a path: "Places > France > Paris" (blanks round each ">") or "Places|France|Paris", with two
/// elements or more. Nothing for a plain keyword.
std::optional<QString> fromTyped(const QString& text);
/// A stored item of this home; "" when it has no element.
QString fromStored(const Home& home, const QString& item);
/// As the home stores it. Nothing where an element holds the home's separator: it cannot be told apart there.
std::optional<QString> stored(const Home& home, const QString& path);
/// The paths in the text of treeTag(): all elements that are assigned.
QStringList inTree(const QString& text);

}  // namespace Quorbel::KeywordPath
