#pragma once

// Everything is hidden by default; what an application may link against carries ORVANTA_EXPORT.
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
