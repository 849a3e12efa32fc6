// A template: fields, and the texts with which they are filled for each photo.
// Thread: any. Plain values. Files and photos are others' matter.
#pragma once

#include "core/schema/FieldSpec.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Quorbel {

/// What becomes of what a field holds already. The raw value stands in template files.
enum class TemplateMode { set, setIfEmpty, append, prepend };

template <>
struct RawValues<TemplateMode> {
    static const QList<std::pair<TemplateMode, QString>>& table();
};

struct TemplateField {
    QString key{};  ///< as in Edits: field id, text in a further language, or custom field
    TemplateMode mode = TemplateMode::set;
    QString text{};  ///< with tokens (TokenText)
    QStringList items{};  ///< of a list, each with tokens

    /// Of the schema; null for a custom field.
    const FieldSpec* spec() const;
    bool isList() const { return spec() && spec()->isList(); }
    QString label() const;  ///< in the user's language
    /// What a field of its kind can do: dates, positions and the like are only set, and items have no order to
    /// prepend to.
    QList<TemplateMode> modes() const;
    /// Nothing but blanks in it: it changes nothing.
    bool isBlank() const;
    bool operator==(const TemplateField&) const = default;
};

struct Template {
    QString name{};
    int digit = 0;  ///< 1 to 9: applied by Ctrl and this digit; 0: none
    QList<TemplateField> fields{};  ///< in the order in which they are shown, one a key

    qsizetype indexOf(const QString& key) const;
    bool operator==(const Template&) const = default;
};

}  // namespace Quorbel
