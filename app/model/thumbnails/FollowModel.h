// Keeps the store's pictures with their photos through everything that this program does to the files.
// Thread: the main thread.
#pragma once

namespace Quorbel {

class AppModel;
class ThumbnailStore;

/// The store must outlive the model's work. To be called before views are made: what they are then told by the model,
/// the store knows already.
void followModel(ThumbnailStore& thumbs, AppModel& model);

}  // namespace Quorbel
