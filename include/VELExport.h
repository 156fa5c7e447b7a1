// Symbol visibility of the base layer. The library is built with hidden
// visibility; every class a caller may use carries VEL_API.
#ifndef VEL_EXPORT_H
#define VEL_EXPORT_H

#if defined(_WIN32)
#  if defined(QRMKIT_BUILDING)
#    define VEL_API __declspec(dllexport)
#  else
#    define VEL_API __declspec(dllimport)
#  endif
#else
#  define VEL_API __attribute__((visibility("default")))
#endif

#endif
