// Homes that disagree: what has to be known and asked before they are made to agree.
#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "core/language/Texts.h"
#include "core/save/Agreement.h"
#include "core/text/Text.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

bool AppModel::canMakeAgree() const
{
    if (!saving().isPossible() || isSaving() || selection().isEmpty())
        return false;
    return unreadSelected() > 0 || selectedDetails().unknown() > 0 || selectedDetails().canAgree();
}

void AppModel::requestMakeAgree()
{
    requireMainThread("requestMakeAgree");
    if (m_services.endEditing)
        m_services.endEditing();
    if (!canMakeAgree() || m_sheets.save)
        return;
    // What is written is what the photos hold, so it is decided first what they are to hold.
    if (unsavedCount() > 0)
        return holdBack([this] { requestMakeAgree(); });
    m_agreeing = Agreeing{ selected().urls() };
    if (const QList<QUrl> unread = unreadOf(m_agreeing->photos); !unread.isEmpty())
        m_library.require(unread);
    goOnAgreeing();
}

// Whenever more is known of the photos, until all is.
void AppModel::goOnAgreeing()
{
    if (!m_agreeing || m_agreeing->isAsking || isSaving())
        return;
    QList<QUrl>& photos = m_agreeing->photos;
    photos.removeIf([this](const QUrl& photo) { return !this->photos().contains(photo); });
    if (std::any_of(photos.cbegin(), photos.cend(), [this](const QUrl& photo) { return isUnread(photo); }))
        return;
    if (!m_library.details().require(photos))
        return;
    if (unsavedCount() > 0 || m_sheets.save) {
        // Typed meanwhile: that is decided first.
        m_agreeing.reset();
        return requestMakeAgree();
    }
    const QHash<QUrl, EditPlan> plans = agreements();
    if (const QStringList names = namesWithoutDetails(); !names.isEmpty()) {
        //: %1 names photos
        setErrorMessage(Texts::tr("The places of these photos’ fields could not be read: %1").arg(Text::listed(names)));
    } else if (plans.isEmpty()) {
        setErrorMessage(Texts::tr("The places of the selected photos’ fields agree already."));
    }
    if (plans.isEmpty()) {
        m_agreeing.reset();
        return;
    }
    const bool asks =
        isBatch() ? m_preferences.confirmMassEdit() && !m_batchDontAskSession : !m_preferences.saveDontAsk();
    if (!asks || m_agreeing->isConfirmed)
        return makeAgree(plans);
    m_agreeing->isAsking = true;
    m_announcer.assign(m_sheets.save, true, Change::saveOpen);
}

// The question is not asked, or not answered.
void AppModel::giveUpAgreeing()
{
    if (!std::exchange(m_agreeing, std::nullopt))
        return;
    m_library.details().require({});
}

QStringList AppModel::namesWithoutDetails() const
{
    QStringList names;
    for (const QUrl& photo : m_agreeing->photos)
        if (!details(photo))
            names.append(photo.fileName());
    return names;
}

QHash<QUrl, EditPlan> AppModel::agreements() const
{
    QHash<QUrl, EditPlan> plans;
    for (const QUrl& photo : m_agreeing->photos) {
        const ImageRecord* record = photos().record(photo);
        const PhotoDetails* known = details(photo);
        if (!record || !known)
            continue;
        if (const EditPlan plan = Agreement::plan(*record, *known); !plan.isEmpty())
            plans.insert(photo, plan);
    }
    return plans;
}

std::optional<AppModel::AgreementQuestion> AppModel::agreementQuestion() const
{
    if (!m_agreeing || !m_agreeing->isAsking)
        return std::nullopt;
    const QHash<QUrl, EditPlan> plans = agreements();
    AgreementQuestion question{ .photos = int(plans.size()) };
    for (const EditPlan& plan : plans)
        for (const QString& id : plan.scalars.keys() + plan.lists.keys())
            ++question.fields[id];
    return question;
}

void AppModel::makeAgree(const QHash<QUrl, EditPlan>& plans)
{
    const Announcer::Together together(m_announcer);
    m_agreeing.reset();
    if (onWriteBegins)
        onWriteBegins(plans.keys());
    m_saving.makeAgree(plans,
        { m_preferences.backupOriginals(), m_preferences.writeSidecar(), {}, pairing().picturesAmong(plans.keys()) });
}

}  // namespace Quorbel
