// The filters as they are shown: which there are, in what order, and what each is called.
// Thread: any. Constants.
#pragma once

#include "app/model/library/filter/PhotoFilter.h"

#include <QList>
#include <QString>

namespace Quorbel {

struct FilterText {
    PhotoTrait trait{};
    QString row{};  ///< in the menu
    QString chip{};  ///< alone; what is spoken, too
};

namespace FilterTexts {

/// Under "Without".
const QList<FilterText>& gaps();
/// Under "Rating".
const FilterText& unrated();
/// Below that.
const QList<FilterText>& states();
QString clearTitle();
QString name();
/// "At least 3 stars".
QString stars(int least);
/// "Contains “lake”".
QString contains(const QString& text);

}  // namespace FilterTexts

}  // namespace Quorbel
