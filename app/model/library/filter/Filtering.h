// Which of the open photos are listed beside the search: those with gaps, stars, unsaved edits, a text in any field;
// several together. And the way from gap to gap.
// A photo that passes no more leaves the list and the selection, after the question about its unsaved edits; while it
// has such, it stays. Filters end when other photos are opened.
// Thread: the main thread. Writes nothing.
#pragma once

#include "app/model/library/filter/RecordTraits.h"

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <optional>

namespace Quorbel {

class AppModel;
class PhotoList;
struct Edits;
struct Selection;

class Filtering final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Filtering)

public:
    /// What it needs of the model's inner parts.
    struct Reach {
        PhotoList& photos;
        std::function<Edits()> unsaved;
        std::function<void(const Selection&)> select;  ///< without a question
        /// Asks about the unsaved edits; what is passed is done after a save or a discard.
        std::function<void(std::function<void()>)> ask;
        std::function<void()> endEditing;  ///< may be empty
    };
    Filtering(AppModel& model, Reach reach);
    ~Filtering() override;

    const PhotoFilter& filter() const;
    /// Whether anything but the search limits the list.
    bool isOn() const { return filter().isLimiting(); }
    bool isOn(PhotoTrait trait) const;
    /// The traits that can be asked for: those of Gaps, unrated, edited, changed, disagreement.
    void setOn(PhotoTrait trait, bool on);
    int leastStars() const { return filter().stars; }
    /// 0: any.
    void setLeastStars(int stars);
    /// As it was typed; the list follows once the keys rest and all photos were looked at.
    const QString& text() const { return m_text; }
    void setText(const QString& text);
    void clear();
    /// Of all open photos, by this trait alone. Unread ones are counted in none but `edited`.
    int count(PhotoTrait trait) const;
    int countOfStars(int least) const;
    int unread() const { return count(PhotoTrait::unread); }

    enum class Way { next, previous };
    /// To the next gap: of the fields that follow the one being typed in, in the order of the form, then of the photos
    /// that follow on screen; round once, with a note. Where gaps are filtered for, only those count. Unsaved texts
    /// fill gaps of the photo that is edited.
    void goToGap(Way way);

    /// Where the way leads in the place of those gaps.
    struct Course {
        struct Found {
            QStringList gaps{};  ///< in the order of the form
            bool isAll = true;  ///< all that one wants to know of the photo is known
        };
        QStringList fields{};  ///< all ids, in the order of the form
        std::function<Found()> here{};  ///< in the selected photos
        std::function<Found(int position)> at{};  ///< in the photo at a position in the list of all
        /// Has these photos looked at; whether there is nothing to wait for any more.
        std::function<bool(const QList<QUrl>&)> require{};
    };
    void setCourse(std::optional<Course> course);

    /// What follows from changes is decided a turn later; this does it now.
    void settle();

    /// Set by the view layer: id of the field that has the keyboard, "" when none has.
    std::function<QString()> focusedField{};

signals:
    void changed();
    void countsChanged();
    /// The field of the selected photo is to take the keyboard.
    void fieldAsked(const QString& id);
    /// A word about where the way from gap to gap has led.
    void noted(const QString& text);

private:
    struct Counts {
        QList<int> traits{};
        QList<int> stars{};
        bool operator==(const Counts&) const = default;
    };
    /// A gap of a photo that is about to be selected.
    struct Goal {
        QUrl photo{};
        QString field{};
        QString note{};
    };

    void connectModel();
    void forget();
    void follow(bool isAsked);
    bool mustLeave(bool isAsked) const;
    void leave();
    void returnToList();
    void markEdited();
    QList<int> positionsOfUnsaved() const;
    void look();
    void tell();
    Counts counts() const;
    // From gap to gap
    PhotoTraits gapsAsked() const;
    QStringList gapsOfDraft() const;
    QStringList gapsHere() const;
    Course::Found found(int position) const;
    QStringList gapsOf(int position) const;
    qsizetype placeOf(const QString& field) const;
    bool goWithinPhoto(const QString& field, Way way);
    bool lookAhead(const QList<QUrl>& photos, Way way);
    void goOn();
    void goTo(const Goal& goal);
    void reach();
    QString nothingLeft() const;

    AppModel& m_model;
    Reach m_reach;
    QTimer m_settle;
    QTimer m_typed;
    QTimer m_look;
    QString m_text;
    PhotoFilter m_told;
    QString m_toldText;
    Counts m_toldCounts;
    std::optional<QUrl> m_left;  ///< the photo that was left last, and nothing was listed to take its place
    std::optional<Goal> m_goal;
    std::optional<Course> m_course;
    std::optional<Way> m_awaited;  ///< the way goes on once more photos were looked at
    bool m_hasUnsaved = false;  ///< of the selection, when the edited photos were marked last
};

}  // namespace Quorbel
