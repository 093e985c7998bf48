#pragma once

#include <orvanta/locale/Localizer.h>
#include <orvanta/messages/TextSnapshot.h>

#include "contenders/ArenaMap.h"
#include "contenders/Icu.h"
#include "contenders/QtTranslations.h"
#include "rows/Questions.h"

/// The contenders of the look-up rows. Their arguments must outlive them.
namespace orvanta::bench {

/// Asks our localizer with handles to the keys.
Contender askLocalizer(Localizer& localizer, const Questions& questions);

/// Asks our localizer with views, as an application with literal keys does.
Contender askLocalizerWithViews(Localizer& localizer, const Questions& questions);

/// Asks a snapshot of our localizer with handles.
Contender askSnapshot(TextSnapshot snapshot, const Questions& questions);

/// Asks a map and, for keys that it lacks, a second one if given.
Contender askMap(const ArenaMap& map, const Questions& questions);
Contender askMaps(const ArenaMap& first, const ArenaMap& second, const Questions& questions);

/// Asks the domain in the languages of the variable LANGUAGE. Stores the returned pointer.
Contender askGettext(const char* domain, const Questions& questions);

/// Asks the bundle and its fallbacks. Stores a view of ICU's UTF-16.
Contender askIcu(const UResourceBundle* bundle, const Questions& questions);

/// Asks the translator and, for keys that it lacks, a second one, as Qt asks the installed
/// translators. Stores the QString.
Contender askQt(const QTranslator& first, const QTranslator* second, const Questions& questions);

}  // namespace orvanta::bench
