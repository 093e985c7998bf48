#pragma once

#include <orvanta/locale/Localizer.h>
#include <orvanta/messages/TextSnapshot.h>

#include "contenders/ArenaMap.h"
#include "contenders/Icu.h"
#include "contenders/QtTranslations.h"
#include "rows/Questions.h"

/// The contenders of the rows about look-ups. What they are given must outlive them.
namespace orvanta::bench {

/// Asks our localizer with handles to the keys.
Contender askLocalizer(Localizer& localizer, const Questions& questions);

/// Asks it with views, as an application does that has its keys in literals.
Contender askLocalizerWithViews(Localizer& localizer, const Questions& questions);

/// Asks a snapshot of it with handles.
Contender askSnapshot(TextSnapshot snapshot, const Questions& questions);

/// Asks a map, and a second one for what the first lacks, if one is given.
Contender askMap(const ArenaMap& map, const Questions& questions);
Contender askMaps(const ArenaMap& first, const ArenaMap& second, const Questions& questions);

/// Asks the domain in the languages of the variable LANGUAGE. Keeps the pointer that it is given.
Contender askGettext(const char* domain, const Questions& questions);

/// Asks the bundle and those that it falls back on. Keeps ICU's own UTF-16.
Contender askIcu(const UResourceBundle* bundle, const Questions& questions);

/// Asks the translator, and a second one for what the first lacks, as an application's list of
/// installed translators is asked. Keeps the QString.
Contender askQt(const QTranslator& first, const QTranslator* second, const Questions& questions);

}  // namespace orvanta::bench
