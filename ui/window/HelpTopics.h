// The help texts: topics, each a list of paragraphs and bulleted lists.
// Thread: any. Pure. Texts name keys and programs as symbols; symbolText() renders them when they are shown.
#pragma once

#include "core/schema/Enumerations.h"

#include <QStringList>

#include <variant>

namespace Quorbel {

enum class HelpTopic {
    gettingStarted,
    interface,
    editing,
    hands,
    languages,
    keywordPaths,
    disagreements,
    gaps,
    fieldSets,
    times,
    batch,
    copying,
    templates,
    renaming,
    saving,
    rawFiles,
    settings
};

template <>
struct RawValues<HelpTopic> {
    static const QList<std::pair<HelpTopic, QString>>& table();
};

struct HelpParagraph {
    QString text{};
    bool operator==(const HelpParagraph&) const = default;
};

struct HelpBullets {
    QStringList items{};
    bool operator==(const HelpBullets&) const = default;
};

using HelpBlock = std::variant<HelpParagraph, HelpBullets>;

QString title(HelpTopic topic);
/// Name of the topic's symbol.
QString iconName(HelpTopic topic);
QList<HelpBlock> blocks(HelpTopic topic);

}  // namespace Quorbel
