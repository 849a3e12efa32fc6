// What is done to many photos at once: tools over the model, in the order in which they are made.
// Thread: the main thread.
#pragma once

#include "app/model/fieldsets/FieldSets.h"
#include "app/model/iptc/CredentialsNotice.h"
#include "app/model/iptc/RememberedCards.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/renaming/PhotosRenaming.h"
#include "app/model/selection/SelectedSidecars.h"
#include "app/model/sidecars/MovingOver.h"
#include "app/model/templates/Templates.h"
#include "app/model/timeshift/TimeShifting.h"
#include "app/model/words/CodeReplacements.h"
#include "app/model/words/FieldPasting.h"
#include "app/model/words/QuickKeywords.h"

#include <memory>

namespace Quorbel {

struct AppModelTools {
    std::unique_ptr<FieldPasting> pasting{};
    std::unique_ptr<Templates> templates{};
    std::unique_ptr<CodeReplacements> codes{};
    std::unique_ptr<QuickKeywords> quickKeywords{};
    std::unique_ptr<PhotosRenaming> renaming{};
    std::unique_ptr<TimeShifting> timeShifting{};
    std::unique_ptr<Filtering> filtering{};
    std::unique_ptr<FieldSets> fieldSets{};  ///< leads the one before
    std::unique_ptr<RememberedCards> rememberedCards{};
    std::unique_ptr<CredentialsNotice> credentials{};
    std::unique_ptr<SelectedSidecars> sidecars{};
    std::unique_ptr<MovingOver> movingOver{};
    std::unique_ptr<Pairing> pairing{};
};

}  // namespace Quorbel
