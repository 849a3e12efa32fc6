// The tools over the model, and what each is handed of its parts.
#include "app/model/AppModelTools.h"

#include "app/model/AppModel.h"

#include <QDir>
#include <QFileInfo>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Where the program keeps what lasts from one run to the next; "" where it keeps nothing.
QString besideLeftEdits(const AppModelServices& services, const QString& name)
{
    const QString path = services.leftEditsPath;
    return path.isEmpty() ? QString() : QFileInfo(path).dir().filePath(name);
}

}  // namespace

// They know the model, so it has to stand.
void AppModel::makeTools()
{
    m_tools = std::make_unique<AppModelTools>();
    m_tools->pairing = std::make_unique<Pairing>(*this,
        Pairing::Reach{ m_library.photos(), m_selected, [this] { filtering().settle(); },
            [this](const Selection& next) { commitSelection(next); },
            [this](std::function<void()> then) { holdBack(std::move(then)); }, m_services.endEditing });
    m_tools->pasting = std::make_unique<FieldPasting>(*this,
        FieldPasting::Parts{ [this] { return m_editing.unsaved(); }, besideLeftEdits(m_services, u"copied.json"_s) });
    m_tools->templates =
        std::make_unique<Templates>(*this, m_tasks, m_services.templatesPath, [this] { return m_editing.unsaved(); });
    m_tools->codes = std::make_unique<CodeReplacements>(*this);
    m_tools->quickKeywords = std::make_unique<QuickKeywords>(*this);
    m_tools->rememberedCards = std::make_unique<RememberedCards>(*this);
    m_tools->credentials = std::make_unique<CredentialsNotice>(*this);
    m_tools->sidecars = std::make_unique<SelectedSidecars>(*this);
    m_tools->renaming = std::make_unique<PhotosRenaming>(*this,
        PhotosRenaming::Parts{ m_announcer, m_tasks, m_library, m_editing, m_saving, m_cache,
            m_services.journalPath.isEmpty() ? QString() : m_services.journalPath + u"/renames"_s,
            m_services.endEditing, [this](std::function<void()> action) { holdBack(std::move(action)); },
            [this](const QList<int>& gone) { takeVanished(gone); } });
    m_tools->filtering = std::make_unique<Filtering>(*this,
        Filtering::Reach{ m_library.photos(), [this] { return m_editing.unsaved(); },
            [this](const Selection& next) { commitSelection(next); },
            [this](std::function<void()> then) { holdBack(std::move(then)); }, m_services.endEditing });
    m_tools->timeShifting = std::make_unique<TimeShifting>(*this,
        TimeShifting::Access{ [this](std::function<void()> action) { holdBack(std::move(action)); },
            [this](const QList<QUrl>& photos) { m_library.require(photos); },
            [this](const ShiftJob::Order& order, const ShiftJob::Looked& looked) {
                const Announcer::Together together(m_announcer);
                if (onWriteBegins)
                    onWriteBegins(order.targets);
                m_saving.shiftTimes(order, looked);
            },
            m_services.service, m_tasks, m_announcer });
    m_tools->movingOver = std::make_unique<MovingOver>(*this,
        MovingOver::Access{ [this](std::function<void()> action) { holdBack(std::move(action)); },
            [this](const SaveJob::Order& order) {
                const Announcer::Together together(m_announcer);
                if (onWriteBegins)
                    onWriteBegins(order.targets);
                m_saving.moveOver(order);
            },
            m_services.service, m_tasks, m_announcer });
    m_tools->fieldSets = std::make_unique<FieldSets>(*this,
        FieldSets::Reach{ [this](const QString& id) { return m_editing.fill(id); },
            [this](const std::optional<QSet<QString>>& fields) { m_editing.showOnly(fields); },
            [this](const QList<QUrl>& photos) { return m_library.details().require(photos); } });
}

FieldPasting& AppModel::pasting()
{
    return *checked(*m_tools).pasting;
}

Templates& AppModel::templates()
{
    return *checked(*m_tools).templates;
}

CodeReplacements& AppModel::codes()
{
    return *checked(*m_tools).codes;
}

QuickKeywords& AppModel::quickKeywords()
{
    return *checked(*m_tools).quickKeywords;
}

RememberedCards& AppModel::rememberedCards()
{
    return *checked(*m_tools).rememberedCards;
}

PhotosRenaming& AppModel::renaming()
{
    return *checked(*m_tools).renaming;
}

TimeShifting& AppModel::timeShifting()
{
    return *checked(*m_tools).timeShifting;
}

MovingOver& AppModel::movingOver()
{
    return *checked(*m_tools).movingOver;
}

Pairing& AppModel::pairing() const
{
    requireMainThread("AppModel");
    return *m_tools->pairing;
}

Filtering& AppModel::filtering()
{
    return *checked(*m_tools).filtering;
}

SelectedSidecars& AppModel::selectedSidecars()
{
    return *checked(*m_tools).sidecars;
}

FieldSets& AppModel::fieldSets()
{
    return *checked(*m_tools).fieldSets;
}

}  // namespace Quorbel
