#include "app/model/pairs/Pairing.h"

#include "app/model/AppModel.h"
#include "app/model/selection/SelectedPhotos.h"
#include "core/language/Texts.h"

#include <algorithm>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Before a photo was read, its type is its extension.
QString typeOf(const ImageRecord& photo)
{
    return photo.fileType == u"JPG"_s ? u"JPEG"_s : photo.fileType;
}

// What the list of the one gains and loses is what the lists of both do: they need not hold the same. One plan writes
// its lists either so or whole: where one of them can only be written as it stands, all are.
Edits withChangedItems(const Edits& edits, const ImageRecord& photo)
{
    Edits changed = edits;
    for (auto list = edits.lists.cbegin(); list != edits.lists.cend(); ++list) {
        // What is not in the record has a plan of its own.
        if (PhotoDetails::hold(list.key()))
            continue;
        const QStringList held = photo.lists.value(list.key());
        QStringList added = *list;
        added.removeIf([&held](const QString& item) { return held.contains(item); });
        QStringList removed = held;
        removed.removeIf([&list](const QString& item) { return list->contains(item); });
        // Another order alone, or what other homes hold.
        if ((added.isEmpty() && removed.isEmpty()) || edits.givenUp.contains(list.key()))
            return edits;
        changed.lists.remove(list.key());
        changed.addItems(list.key(), added);
        changed.removeItems(list.key(), removed);
    }
    return changed;
}

// Those of the photos that have none of their own go with their raw files.
Edits withPictures(Edits edits, const QHash<QUrl, QUrl>& rawOf)
{
    for (auto pair = rawOf.cbegin(); pair != rawOf.cend(); ++pair)
        if (const auto own = edits.own.constFind(*pair); own != edits.own.cend())
            edits.own.insert(pair.key(), OwnEdits(*own));
    return edits;
}

}  // namespace

Pairing::Pairing(AppModel& model, Reach reach)
    : m_model(model)
    , m_reach(std::move(reach))
    , m_isOn(model.preferences(), "pairRawAndJpeg", false)
{
    m_reach.photos.setPairing(m_isOn());
}

// --- Which files are one photo ---

bool Pairing::isPairEdited() const
{
    const QSet<QUrl>& selected = m_model.selection();
    return m_model.unsavedCount() > 0
        && std::any_of(selected.cbegin(), selected.cend(), [this](const QUrl& photo) { return pictureOf(photo); });
}

void Pairing::setOn(bool on)
{
    requireMainThread("Pairing::setOn");
    if (m_reach.endEditing)
        m_reach.endEditing();
    if (on == isOn())
        return;
    if (!on && isPairEdited())
        return m_reach.ask([this] { setOn(false); });
    m_reach.settle();
    m_reach.photos.setPairing(on);
    m_isOn.set(on);
    m_reach.settle();
}

void Pairing::follow()
{
    const Selection before = m_reach.selected.selection();
    const auto isHidden = [this](const QUrl& photo) { return m_reach.photos.rawOf(photo).has_value(); };
    if (!isOn() || std::none_of(before.photos.cbegin(), before.photos.cend(), isHidden))
        return;
    Selection next;
    for (const QUrl& photo : before.photos)
        next.photos.insert(photoOf(photo));
    next.anchor = before.anchor ? std::optional(photoOf(*before.anchor)) : std::nullopt;
    next.primary = before.primary ? std::optional(photoOf(*before.primary)) : std::nullopt;
    m_reach.select(next);
}

int Pairing::photos() const
{
    return m_reach.photos.index().photos();
}

std::optional<QUrl> Pairing::pictureOf(const QUrl& photo) const
{
    return m_reach.photos.pictureOf(photo);
}

QUrl Pairing::photoOf(const QUrl& file) const
{
    return m_reach.photos.rawOf(file).value_or(file);
}

QList<QUrl> Pairing::filesOf(const QList<QUrl>& photos) const
{
    if (!isOn())
        return photos;
    QList<QUrl> files;
    files.reserve(photos.size());
    for (const QUrl& photo : photos) {
        files.append(photo);
        if (const auto picture = pictureOf(photo))
            files.append(*picture);
    }
    return files;
}

QSet<QUrl> Pairing::filesOf(const QSet<QUrl>& photos) const
{
    QSet<QUrl> files = photos;
    for (const QUrl& photo : isOn() ? photos : QSet<QUrl>())
        if (const auto picture = pictureOf(photo))
            files.insert(*picture);
    return files;
}

QSet<QUrl> Pairing::picturesAmong(const QList<QUrl>& files) const
{
    QSet<QUrl> pictures;
    for (const QUrl& file : isOn() ? files : QList<QUrl>())
        if (const int at = m_reach.photos.position(file); at >= 0 && m_reach.photos.index().isPaired(at))
            pictures.insert(file);
    return pictures;
}

NewNames Pairing::heirsOf(const QSet<QUrl>& gone) const
{
    QList<std::pair<QUrl, QUrl>> heirs;
    for (const QUrl& photo : gone)
        if (const auto picture = pictureOf(photo); picture && !gone.contains(*picture))
            heirs.append({ photo, *picture });
    return NewNames(heirs);
}

qsizetype Pairing::credentialsBehind(const QSet<QUrl>& photos) const
{
    if (!isOn())
        return 0;
    return std::count_if(photos.cbegin(), photos.cend(), [this](const QUrl& photo) {
        const auto picture = pictureOf(photo);
        const PhotoDetails* known = picture ? m_model.details(*picture) : nullptr;
        return known && known->hasCredentials;
    });
}

// --- How it is shown ---

const ImageRecord* Pairing::pictureRecord(const ImageRecord& photo) const
{
    const auto picture = pictureOf(photo.url);
    return picture ? m_model.record(*picture) : nullptr;
}

QString Pairing::types(const ImageRecord& photo) const
{
    const ImageRecord* picture = pictureRecord(photo);
    return picture ? photo.fileType + u" + "_s + typeOf(*picture) : photo.fileType;
}

QString Pairing::sidebarLine(const ImageRecord& photo) const
{
    return pictureRecord(photo) ? detailLine(photo) : photo.sidebarLine();
}

QString Pairing::detailLine(const ImageRecord& photo) const
{
    const ImageRecord* picture = pictureRecord(photo);
    if (!picture)
        return photo.detailLine();
    ImageRecord both;
    both.fileType = types(photo);
    const ImageRecord& measured = photo.pixelWidth && photo.pixelHeight ? photo : *picture;
    both.pixelWidth = measured.pixelWidth;
    both.pixelHeight = measured.pixelHeight;
    if (photo.fileSize && picture->fileSize)
        both.fileSize = *photo.fileSize + *picture->fileSize;
    return both.detailLine();
}

QString Pairing::names(const ImageRecord& photo) const
{
    const ImageRecord* picture = pictureRecord(photo);
    //: the end of a list: "a.jpg, b.jpg and c.jpg"
    return picture ? Texts::tr("%1 and %2").arg(photo.fileName, picture->fileName) : photo.fileName;
}

// --- What a save is about ---

Edits Pairing::forFiles(const Edits& edits, const LeftEdits& left)
{
    m_sent = {};
    m_refused.reset();
    if (!isOn())
        return edits;
    for (const QUrl& photo : edits.subjects)
        if (const auto picture = pictureOf(photo))
            m_sent.rawOf.insert(*picture, photo);
    if (m_sent.rawOf.isEmpty())
        return edits;
    m_sent.left = left;
    const ImageRecord* only = edits.subjects.size() == 1 ? m_model.record(edits.subjects.constFirst()) : nullptr;
    Edits all = withPictures(only ? withChangedItems(edits, *only) : edits, m_sent.rawOf);
    all.subjects = filesOf(edits.subjects);
    return all;
}

SaveOutcome Pairing::forPhotos(SaveOutcome outcome)
{
    const Sent sent = std::exchange(m_sent, {});
    if (sent.rawOf.isEmpty())
        return outcome;
    const Edits& edits = sent.left.edits;
    const auto isPicture = [&sent](const QUrl& file) { return sent.rawOf.contains(file); };
    const bool isPicturesAlone = std::all_of(outcome.failed.cbegin(), outcome.failed.cend(), isPicture);
    if (!outcome.failed.isEmpty() && isPicturesAlone) {
        QHash<QUrl, QUrl> pictureOf;
        for (const QUrl& picture : std::as_const(outcome.failed))
            pictureOf.insert(sent.rawOf.value(picture), picture);
        m_refused = sent.left;
        m_refused->edits = edits.onlyOf(QSet<QUrl>(pictureOf.keyBegin(), pictureOf.keyEnd()));
        m_refused->edits.rename(pictureOf);
        outcome.failed.clear();
    }
    QSet<QUrl> failed;
    for (const QUrl& file : std::as_const(outcome.failed))
        failed.insert(sent.rawOf.value(file, file));
    outcome.failed = edits.onlyOf(failed).subjects;
    if (!failed.isEmpty())
        outcome.unsaved = edits.onlyOf(failed);
    else
        outcome.unsaved = outcome.differing.isEmpty() ? Edits() : edits.minus(edits, outcome.differing);
    return outcome;
}

}  // namespace Quorbel
