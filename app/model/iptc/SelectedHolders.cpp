#include "app/model/iptc/SelectedHolders.h"

#include "app/model/AppModel.h"

namespace Quorbel {

SelectedHolders::SelectedHolders(const AppModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
{
    for (const auto changed : { &AppModel::selectionChanged, &AppModel::recordsChanged, &AppModel::detailsChanged })
        connect(&model, changed, this, [this] { m_counted.reset(); });
}

SelectedHolders::Count SelectedHolders::of(const QString& id) const
{
    if (!m_counted)
        m_counted = count();
    return { m_counted->photos.value(id), m_counted->unknown };
}

SelectedHolders::Counted SelectedHolders::count() const
{
    Counted counted;
    // Mostly those that were on screen are known, and nobody has to ask for thousands of others.
    const qsizetype known = m_model.records().size() - m_model.disagreements().unknown;
    const QList<int>& rows = m_model.selectedRows();
    qsizetype found = 0;
    for (qsizetype i = 0; i < rows.size() && found < known; ++i) {
        const PhotoDetails* details = m_model.details(m_model.records().at(rows.at(i)).url);
        if (!details)
            continue;
        ++found;
        for (auto text = details->texts.keyBegin(); text != details->texts.keyEnd(); ++text)
            ++counted.photos[*text];
        for (auto list = details->lists.cbegin(); list != details->lists.cend(); ++list)
            counted.photos[list.key()] += list->isEmpty() ? 0 : 1;
    }
    counted.unknown = int(rows.size() - found);
    return counted;
}

}  // namespace Quorbel
