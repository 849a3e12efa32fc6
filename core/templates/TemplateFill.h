// What a template makes of photos: the texts as they come out for each, and the edits that they are.
// Thread: any. Pure. Knows no selection: it is told which photos, in which order they are counted, and what of them is
// edited already.
#pragma once

#include "core/save/Edits.h"
#include "core/templates/Template.h"
#include "core/tokens/TokenText.h"

#include <functional>

namespace Quorbel {

/// One field of a template, filled for one photo.
struct FilledField {
    enum class Outcome { changed, kept, refused };
    QString key{};
    QString label{};
    Outcome outcome = Outcome::kept;
    QString text{};  ///< what the field then holds; of a list its items, joined
    QString note{};  ///< why it stays ("kept: not empty"), or which values are missing ("People missing: “The crew”")
    QStringList items{};  ///< of a list all that it then holds
    QStringList added{};
    QStringList removed{};
    QList<RenderedPiece> pieces{};  ///< of the text, so that a view can mark what is missing in it

    bool operator==(const FilledField&) const = default;
};

/// One photo to be filled.
struct PhotoToFill {
    const ImageRecord& record;
    qint64 position = 0;  ///< for the counter, from 0
    const PhotoDetails* details = nullptr;  ///< null where they were not read: its texts in further languages stay
};

namespace TemplateFill {

/// Every field of the template, in its order. `unsaved` is what is edited, of this photo or of all.
QList<FilledField> fill(const Template& value, const PhotoToFill& photo, const Edits& unsaved);

/// What laying the template over photos changes.
struct Result {
    Edits edits{};  ///< texts that are the same for all are common, the others own
    QStringList refusals{};  ///< one line for each field that could not take its text in some photos
};

/// Photos that were not read are left out. `goOn` is asked before each photo; false ends it early, with nothing.
Result edits(const Template& value, const QList<ImageRecord>& photos, const Edits& unsaved,
    const QHash<QUrl, PhotoDetails>& details, const std::function<bool()>& goOn = {});

/// A template of what this photo holds: its texts and items, but no dates, positions and offsets, no structures, and
/// nothing that tells this picture from others. `details`: null where they were not read.
Template of(const QString& name, const ImageRecord& photo, const Edits& unsaved, const PhotoDetails* details = nullptr);

}  // namespace TemplateFill

}  // namespace Quorbel
