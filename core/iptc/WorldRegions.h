// The world region of a country, as the vocabulary of world regions names it. The grouping is that of the United
// Nations (M49), with Central America and the Caribbean in North America.
// Thread: any. Pure.
#pragma once

#include <QString>

namespace Quorbel::WorldRegions {

/// "Asia" of "JP"; case plays no part. "" for what is no two-letter code of ISO 3166.
QString nameOf(const QString& countryCode);

}  // namespace Quorbel::WorldRegions
