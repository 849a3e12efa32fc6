// The photos of a folder repeat each other's texts: each text is held once. That saves memory, and tells texts equal
// by their address, without looking at them.
// Thread: one at a time.
#pragma once

#include "core/schema/ImageRecord.h"

#include <QSet>

namespace Quorbel {

class SharedTexts final {
public:
    /// The record's texts are from now on those of the records before it, where they are equal.
    void share(ImageRecord& record);
    void share(QString& text) { text = *m_texts.insert(text); }

private:
    QSet<QString> m_texts;
};

}  // namespace Quorbel
