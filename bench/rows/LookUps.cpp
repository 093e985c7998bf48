#include "rows/LookUps.h"

#include <utility>

#include <libintl.h>

namespace orvanta::bench {

namespace {

std::string_view textOfView(std::string_view view) {
  return view;
}

std::string_view textOfHandle(const String& handle) {
  return handle.view();
}

}  // namespace

Contender askLocalizer(Localizer& localizer, const Questions& questions) {
  return askingAll(
      std::string(kOurs), questions,
      [&localizer, keys = questions.handles.data()](std::size_t at) {
        return localizer.localizedStringForKey(keys[at]);
      },
      textOfHandle);
}

Contender askLocalizerWithViews(Localizer& localizer, const Questions& questions) {
  return askingAll(
      "orvanta-view", questions,
      [&localizer, keys = questions.views.data()](std::size_t at) {
        return localizer.localizedStringForKey(keys[at]);
      },
      textOfHandle);
}

Contender askSnapshot(TextSnapshot snapshot, const Questions& questions) {
  return askingAll(
      std::string(kOurs), questions,
      [snapshot = std::move(snapshot), keys = questions.handles.data()](std::size_t at) {
        return snapshot.localizedStringForKey(keys[at]);
      },
      textOfHandle);
}

Contender askMap(const ArenaMap& map, const Questions& questions) {
  return askingAll(
      std::string(kFloor), questions,
      [&map, keys = questions.views.data()](std::size_t at) { return map.find(keys[at]); },
      textOfView);
}

Contender askMaps(const ArenaMap& first, const ArenaMap& second, const Questions& questions) {
  return askingAll(
      std::string(kFloor), questions,
      [&first, &second, keys = questions.views.data()](std::size_t at) {
        const std::string_view text = first.find(keys[at]);
        return text.data() != nullptr ? text : second.find(keys[at]);
      },
      textOfView);
}

Contender askGettext(const char* domain, const Questions& questions) {
  return askingAll(
      "gettext", questions,
      [domain, keys = questions.terminated.data()](std::size_t at) {
        return dgettext(domain, keys[at].c_str());
      },
      textOfView);
}

Contender askIcu(const UResourceBundle* bundle, const Questions& questions) {
  return askingAll(
      "icu", questions,
      [bundle, keys = questions.terminated.data()](std::size_t at) {
        return icu::find(bundle, keys[at].c_str());
      },
      icu::utf8);
}

Contender askQt(const QTranslator& first, const QTranslator* second, const Questions& questions) {
  return askingAll(
      "qt", questions,
      [&first, second, keys = questions.terminated.data()](std::size_t at) {
        QString text = qt::find(first, keys[at].c_str());
        return text.isNull() && second != nullptr ? qt::find(*second, keys[at].c_str()) : text;
      },
      [](const QString& text) { return text.toStdString(); });
}

}  // namespace orvanta::bench
