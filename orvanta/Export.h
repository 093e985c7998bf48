#pragma once

// Everything is hidden by default; what an application may link against carries ORVANTA_EXPORT.
// Private operations of an exported class carry ORVANTA_HIDDEN. The list of what is exported is
// orvanta/orvanta.symbols.
#if defined(_WIN32) && defined(ORVANTA_SHARED)
#if defined(ORVANTA_BUILDING)
#define ORVANTA_EXPORT __declspec(dllexport)
#else
#define ORVANTA_EXPORT __declspec(dllimport)
#endif
#elif defined(_WIN32)
#define ORVANTA_EXPORT
#else
#define ORVANTA_EXPORT __attribute__((visibility("default")))
#endif

#if defined(_WIN32)
#define ORVANTA_HIDDEN
#else
#define ORVANTA_HIDDEN __attribute__((visibility("hidden")))
#endif
