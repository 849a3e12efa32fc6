// The scrolled part of the inspector: header or banner, sections of field rows, the camera's details.
// Thread: the main thread. Shows the model and calls it. Rows are kept once made: switching photos, or between one
// and several, gives them other states.
#pragma once

#include "core/schema/FieldSchema.h"

#include <QSet>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <array>
#include <optional>

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class BesideSet;
class CameraSection;
class CustomFieldsSection;
class DetailsWait;
class FieldRow;
class FormHead;
class FormLanguages;
class FormPause;
class FormRows;
class FormSection;
class IptcSections;
class KeywordRows;
class LocationMap;
class MapRenderer;
class PlaceProvider;
class ThumbnailStore;

class InspectorForm final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(InspectorForm)

public:
    /// All but the model may be null. Nothing is owned, and everything must outlive this.
    InspectorForm(
        AppModel& model, ThumbnailStore* thumbs, PlaceProvider* places, MapRenderer* maps, QWidget* parent = nullptr);
    /// Reads the model again and shows what differs. Needs a selected photo.
    void refresh();
    /// Nothing is selected any more: what is shown next has nothing to do with what was.
    void leave();
    /// The controls that Tab comes to behind the form's last.
    void setTabStopsBehind(const QList<QWidget*>& stops) { m_stopsBehind = stops; }
    /// Pixels kept free at the lower end.
    void setBottomInset(int pixels);
    int bottomInset() const { return m_bottomInset; }
    /// The row of a field, by its id or by the key of a custom field or of a language; null while it is not on screen.
    FieldRow* row(const QString& id) const;
    /// The same the other way round, for any part of a row; "" where it is in none.
    QString keyOf(const QWidget* widget) const;
    /// The same as row(); a section that is folded over it unfolds.
    FieldRow* reveal(const QString& id);
    /// Whether it is not known yet what the photo holds under this key: its row, if it is on screen, takes nothing.
    bool isAwaited(const QString& key) const;
    QSize minimumSizeHint() const override;

signals:
    /// The user added this field to those on screen: a field id, or the key of a custom field or of a language.
    void fieldAdded(const QString& id);

private:
    /// What the form is about: when it changes, texts that stay equal belong to other photos all the same.
    struct Subject {
        QSet<QUrl> selection{};
        std::optional<QUrl> primary{};
        bool operator==(const Subject&) const = default;
    };

    void awaitRecords();
    void showBlocks();
    void hideBelowSections();
    void endWaiting();
    void takeMouse(bool on);
    QList<FieldRow*> rowsOf(const QStringList& ids, bool fresh);
    void showSection(FieldSection section, bool fresh);
    void showSections(bool fresh);
    QStringList withHeld(QStringList ids, QStringList& shown) const;
    void showAgain();
    void takeKeyboardFromAwaited();
    void addLanguageRows(const FieldSpec& field, bool fresh, QList<FieldRow*>& rows);
    void addAwaitedRows(const FieldSpec& field, QList<FieldRow*>& rows);
    void showMap(bool fresh);
    void showCamera();
    void announceAdded(bool fresh);
    bool takes(const QString& key) const;
    void orderTabStops();
    void addKeywordRows();
    void showKeywordRows();
    bool arePlaceFieldsEmpty() const;

    AppModel& m_model;
    std::optional<Subject> m_subject{};  ///< of the values on screen
    QSet<QString> m_added{};  ///< the fields that were added when the model was last read
    bool m_tabOrderStale = true;
    QList<QWidget*> m_stopsBehind;
    QVBoxLayout* m_column;
    FormHead* m_head;
    FormLanguages* m_languages;
    FormRows* m_rows;
    std::array<FormSection*, 3> m_sections{};  ///< in the order of FieldSection
    std::array<QStringList, 4> m_shownIds{};  ///< the fields in these, and in m_beside
    IptcSections* m_iptc;  ///< the sections behind these
    CustomFieldsSection* m_customs;
    BesideSet* m_beside;
    FormSection* m_cameraSection;
    LocationMap* m_map;
    CameraSection* m_camera;
    KeywordRows* m_keywordRows = nullptr;  ///< until several photos were selected
    QList<QWidget*> m_keywordStops;  ///< of those rows, when Tab was last put in order
    FormPause* m_pause;  ///< on while there is nothing to show of what is selected
    DetailsWait* m_wait;  ///< on while that is so of the fields of IptcSchema
    FormPause* m_waitPause;  ///< on while it keeps the keyboard from them
    QTimer m_blocksSoon;
    int m_bottomInset = 0;
};

}  // namespace Quorbel
