#pragma once

/// Everything that an application needs of the core. An application with a platform of its own
/// includes <orvanta/platform/Platform.h> too, and one that only sets options
/// <orvanta/standard/StandardPlatform.h>.

#include <orvanta/cache/OVStringCache.h>
#include <orvanta/cache/OVStringCacheUtilities.h>
#include <orvanta/controls/UILocalizedButton.h>
#include <orvanta/controls/UILocalizedLabel.h>
#include <orvanta/controls/UILocalizedTextField.h>
#include <orvanta/fonts/localizationUtilities.h>
#include <orvanta/locale/Localizer.h>
#include <orvanta/locale/OVLocale.h>
#include <orvanta/locale/SystemInfo.h>
#include <orvanta/locale/Version.h>
#include <orvanta/messages/LocalizedMessages.h>
#include <orvanta/messages/TextSnapshot.h>
