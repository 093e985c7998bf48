#pragma once

#include <QtGlobal>

#if defined(ORVANTA_QT_BUILDING)
#define ORVANTA_QT_EXPORT Q_DECL_EXPORT
#else
#define ORVANTA_QT_EXPORT Q_DECL_IMPORT
#endif
