// Which fields of the inspector's form show their texts in further languages, and what is done with these.
// Thread: the main thread. Shows the model and calls it; knows no editor.
#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>

namespace Quorbel {

class AppModel;
class FieldRow;
struct FieldSpec;

class FormLanguages final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FormLanguages)

public:
    explicit FormLanguages(AppModel& model, QObject* parent = nullptr);
    /// Stays as it is from one photo to the next.
    bool isOpen(const QString& id) const { return m_open.contains(id); }
    /// The codes whose rows are on screen now.
    QStringList shownCodes(const QString& id) const;
    /// What the row of a field asks for, or the row of its text in this language.
    void connectRow(FieldRow& row, const FieldSpec& field, const QString& code = {});

signals:
    /// Other rows are to be shown.
    void changed();
    /// The row with this key is to have the keyboard: that of the field, or of a language.
    void focusAsked(const QString& key);

private:
    void setOpen(const QString& id, bool open);
    void remove(const QString& id, const QString& code);
    void openMenu(const FieldSpec& field, QWidget* anchor, const FieldRow& row);
    QStringList likely(const QString& id) const;
    void add(const QString& id, const QString& code);

    AppModel& m_model;
    QSet<QString> m_open;  ///< ids of fields
    QStringList m_added;  ///< codes that were added lately, the last first
};

}  // namespace Quorbel
