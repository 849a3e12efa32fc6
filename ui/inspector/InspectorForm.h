// The scrolled part of the inspector: header or banner, sections of field rows, the camera's details.
// Thread: the main thread. Shows the model and calls it. Rows are kept once made: switching photos, or between one
// and several, gives them other states.
#pragma once

#include "core/schema/FieldSchema.h"

#include <QHash>
#include <QSet>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include <array>
#include <optional>

class QVBoxLayout;

namespace Quorbel {

class AppModel;
class BatchBanner;
class CameraSection;
class ChoicePicker;
class DetailsWait;
class FieldRow;
class FormLanguages;
class FormPause;
class FormSection;
class IptcSections;
class KeywordRows;
class LocationMap;
class MapRenderer;
class PhotoHeader;
class PlaceProvider;
class ThumbnailStore;
struct CustomValue;
struct FieldRowParts;

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

    void showHeader();
    void awaitRecords();
    void showBlocks();
    void endWaiting();
    void takeMouse(bool on);
    QList<FieldRow*> rowsOf(const QStringList& ids, bool fresh);
    void showSection(FieldSection section, bool fresh);
    void showSections(bool fresh);
    void showAgain();
    void takeKeyboardFromAwaited();
    void addLanguageRows(const FieldSpec& field, bool fresh, QList<FieldRow*>& rows);
    void addAwaitedRows(const FieldSpec& field, QList<FieldRow*>& rows);
    void showCustoms(bool fresh);
    void showMap(bool fresh);
    void showCamera();
    void announceAdded(bool fresh);
    FieldRow* makeRow(const QString& key, FieldRowParts parts);
    FieldRow* rowOf(const FieldSpec& field);
    FieldRow* rowOf(const FieldSpec& field, const QString& code);
    FieldRow* rowOf(const CustomValue& custom);
    void connectRow(FieldRow& row, const FieldSpec& field);
    bool takes(const QString& key) const;
    void write(const QString& id, const QString& text);
    void changeList(const QString& id, const QString& item, bool add);
    void toggle(const FieldSpec& field);
    void orderTabStops();
    void addKeywordRows();
    void showKeywordRows();
    bool arePlaceFieldsEmpty() const;

    AppModel& m_model;
    PlaceProvider* m_places;
    std::optional<Subject> m_subject{};  ///< of the values on screen
    QSet<QString> m_added{};  ///< the fields that were added when the model was last read
    QSet<QString> m_customNames{};  ///< of the custom fields on screen
    bool m_tabOrderStale = true;
    QList<QWidget*> m_stopsBehind;
    QHash<QString, FieldRow*> m_pool;  ///< by field id, or by the key of a custom field
    QVBoxLayout* m_column;
    PhotoHeader* m_header;
    BatchBanner* m_banner;
    std::array<FormSection*, 3> m_sections{};  ///< in the order of FieldSection
    std::array<QStringList, 3> m_shownIds{};  ///< the fields in these
    IptcSections* m_iptc;  ///< the sections behind these
    FormSection* m_customs;
    FormSection* m_cameraSection;
    LocationMap* m_map;
    CameraSection* m_camera;
    ChoicePicker* m_picker;  ///< of field sets
    ChoicePicker* m_batchPicker;  ///< the same, in the banner
    FormLanguages* m_languages;
    KeywordRows* m_keywordRows = nullptr;  ///< until several photos were selected
    QList<QWidget*> m_keywordStops;  ///< of those rows, when Tab was last put in order
    FormPause* m_pause;  ///< on while there is nothing to show of what is selected
    DetailsWait* m_wait;  ///< on while that is so of the fields of IptcSchema
    FormPause* m_waitPause;  ///< on while it keeps the keyboard from them
    QTimer m_blocksSoon;
    int m_bottomInset = 0;
};

}  // namespace Quorbel
