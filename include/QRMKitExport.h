// Symbol visibility. The library is built with hidden visibility; every
// class and function a caller may use carries QRMKIT_API (VEL_API in the
// base layer, the same thing).
#ifndef QRMKIT_EXPORT_H
#define QRMKIT_EXPORT_H

#if defined(_WIN32)
#if defined(QRMKIT_BUILDING)
#define QRMKIT_API __declspec(dllexport)
#else
#define QRMKIT_API __declspec(dllimport)
#endif
#else
#define QRMKIT_API __attribute__((visibility("default")))
#endif

#define VEL_API QRMKIT_API

#endif
