#pragma once

#include <orvanta/locale/TextChain.h>
#include <orvanta/text/String.h>

namespace orvanta {

/// Why a look-up gives the text that it gives: which table holds it, and how the current language
/// came about.
struct TextExplanation {
  String text;  ///< Absent for an absent key, or without any bundle.
  /// The link of the chain that holds the text.
  TextSource source = TextSource::key;
  String locale;      ///< Of the table; absent when the key is shown.
  String bundlePath;  ///< Likewise.
  /// Whether that table stands in the cache of downloads.
  bool isDownloaded = false;

  String currentLocale;  ///< The first of `preferredLocales`.
  /// The requested identifier that `currentLocale` was adopted for; absent when English was adopted
  /// because nothing was asked for, and when a property was set meanwhile.
  String request;
  /// The identifier in the fallback table whose row led to `currentLocale`; absent without one.
  String fallbackRow;
  /// The language whose table is used because the request, or `currentLocale`, has none of its own;
  /// absent when it has.
  String languagePart;
};

}  // namespace orvanta
