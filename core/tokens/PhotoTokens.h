// What the tokens of a text say for one photo. Thread: any. A plain value, cheap to make and to copy.
#pragma once

#include "core/schema/ImageRecord.h"
#include "core/tokens/CounterForm.h"
#include "core/tokens/TokenCatalog.h"

namespace Quorbel {

struct Edits;

struct PhotoTokens {
    QString fileName{};
    QMap<QString, QString> values{};  ///< as ImageRecord::values
    QMap<QString, QStringList> lists{};
    QList<CameraRow> camera{};
    qint64 position = 0;  ///< of the photo among those that are counted, from 0
    CounterForm counter{};  ///< of a counter that has no form of its own
    bool wholeDates = false;  ///< a date without a form comes with its time: for a field that is a date itself

    /// As the photo was saved.
    static PhotoTokens of(const ImageRecord& photo);
    /// With these edits of it, or of many photos, laid over that.
    static PhotoTokens of(const ImageRecord& photo, const Edits& edits);

    /// "" when the photo has no such value, or not as precisely as the form asks for. A form that its token does not
    /// know is passed over. Forms: that of DateForm, of CounterForm, and "upper" and "lower" for all else.
    QString value(const TokenSpec& token, const QString& form = {}) const;
};

}  // namespace Quorbel
