#include "app/model/iptc/CredentialsNotice.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

CredentialsNotice::CredentialsNotice(AppModel& model)
    : m_model(model)
{
    connect(&model, &AppModel::errorMessageChanged, this, &CredentialsNotice::tell);
    connect(&model, &AppModel::saveOpenChanged, this, [this] {
        if (m_model.saveOpen())
            m_isAsked = m_model.credentialsAtStake() > 0;
    });
}

QString CredentialsNotice::text(int photos)
{
    return photos < 1
        ? QString()
        : Texts::tr("%n photo(s) (has|have) Content Credentials: other programs will report (it|them) as changed.",
            nullptr, photos);
}

void CredentialsNotice::noteWritten(const QList<QUrl>& photos)
{
    if (m_isTold)
        return;
    m_unknown += QSet<QUrl>(photos.cbegin(), photos.cend());
    noteKnown(photos);
}

void CredentialsNotice::noteKnown(const QList<QUrl>& photos)
{
    if (m_unknown.isEmpty())
        return;
    for (const QUrl& photo : photos)
        if (const PhotoDetails* known = m_model.details(photo); known && m_unknown.remove(photo))
            m_sealed += known->hasCredentials ? 1 : 0;
    tell();
}

void CredentialsNotice::tell()
{
    if (m_sealed < 1 || m_isTold || m_model.errorMessage())
        return;
    m_isTold = true;
    m_unknown.clear();
    m_model.setErrorMessage(text(m_sealed));
}

}  // namespace Quorbel
