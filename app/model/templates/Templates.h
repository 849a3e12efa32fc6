// The user's templates: fields with texts that are filled in for each photo, one file each.
// Thread: the main thread; files are read and written in the background, and many photos are filled there. What a
// template gives are unsaved edits.
#pragma once

#include "app/model/templates/TemplateStore.h"
#include "core/templates/TemplateFill.h"

#include <optional>

namespace Quorbel {

class AppModel;
class RunningTasks;

class Templates final : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Templates)

public:
    /// `unsaved`: what is edited of the selected photos now.
    Templates(AppModel& model, RunningTasks& tasks, const QString& folder, std::function<Edits()> unsaved);
    ~Templates() override;

    /// Asks for files. Set by the shell; empty where nobody can be asked.
    struct Panels {
        std::function<void(std::function<void(const QStringList& paths)>)> import{};
        std::function<void(const QString& name, std::function<void(const QString& path)>)> exportTo{};
    };
    Panels panels{};

    TemplateStore& store() { return m_store; }
    const TemplateStore& store() const { return m_store; }

    // --- The sheet ---
    bool isOpen() const { return m_isOpen; }
    /// Opened, it is about the template that was chosen last.
    void setOpen(bool open);
    /// Id of the chosen one; 0 when there is none.
    int current() const { return m_current; }
    void choose(int id);
    /// Makes an empty one and chooses it.
    void addNew();
    /// Makes one of what the selected photo holds, and opens the sheet with it.
    void saveAsTemplate();
    bool canSaveAsTemplate() const;

    // --- Filling photos ---
    /// How many photos are selected.
    int photoCount() const;
    /// Not while there is nothing to fill, and not while a save or a fill runs.
    bool canApply() const;
    /// Fills the selected photos: unsaved edits, in one go. Photos that were not read are waited for. Nothing when the
    /// selection changes before. Of many photos a task tells how far it is.
    void apply(int id);
    /// Gives up a fill that waits or runs: nothing of it is laid.
    void cancel();
    /// The template with this digit; whether there is one.
    bool applyDigit(int digit);
    /// How many photos a fill that was asked for waits for, or computes; 0: none.
    int pending() const { return m_pending ? photoCount() : 0; }

    // --- What it would come to ---
    /// The name of the photo at this place of the selection, in the order of the list; "" where there is none.
    QString photoName(int place) const;
    /// The chosen template's fields as they come out for that photo. None where it was not read.
    QList<FilledField> preview(int place) const;

signals:
    void openChanged();
    void currentChanged();
    /// The photos of the preview, or what they hold.
    void photosChanged();
    /// canApply() or pending().
    void canApplyChanged();

private:
    void forgetPhotos();
    const QList<int>& rows() const;
    void fill();
    void fillInBackground(
        const Template& value, const QList<ImageRecord>& photos, const QHash<QUrl, PhotoDetails>& details);
    void fillSoon();
    void giveUp();
    void takeFilled(const TemplateFill::Result& result);

    AppModel& m_model;
    RunningTasks& m_tasks;
    std::function<Edits()> m_unsaved;
    TemplateStore m_store;
    bool m_isOpen = false;
    int m_current = 0;
    std::optional<int> m_pending;  ///< template to be applied
    int m_task = 0;  ///< of the fill that runs; 0: none
    int m_ticket = 0;  ///< of the photos and edits that a fill was begun with
    mutable std::optional<QList<int>> m_rows;  ///< positions of the selected photos, in the list's order
};

}  // namespace Quorbel
