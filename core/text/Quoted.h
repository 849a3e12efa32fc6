// Names and texts of others within the program's sentences. Thread: any.
#pragma once

#include <QString>

namespace Quorbel::Text {

/// In the quotation marks of the user's language: “Title”.
QString quoted(const QString& text);

}  // namespace Quorbel::Text
