/** @defgroup export Export
 * @ingroup kovra_util
 *
 * How the functions of the two libraries are exported and imported. A program that is linked with the static libraries
 * defines `KOVRA_STATIC`.
 *
 * @{ */
#ifndef KOVRA_EXPORT_H
#define KOVRA_EXPORT_H

#include <stdint.h>

/** @cond */
#if defined(KOVRA_STATIC)
#define KOVRA_EXPORTED
#define KOVRA_IMPORTED
#elif defined(_WIN32)
#define KOVRA_EXPORTED __declspec(dllexport)
#define KOVRA_IMPORTED __declspec(dllimport)
#else
#define KOVRA_EXPORTED __attribute__((visibility("default")))
#define KOVRA_IMPORTED
#endif

#if defined(KOVRA_BUILDING_UTIL)
#define KOVRA_UTIL_API KOVRA_EXPORTED
#else
#define KOVRA_UTIL_API KOVRA_IMPORTED
#endif

#if defined(KOVRA_BUILDING_ASN1)
#define KOVRA_ASN1_API KOVRA_EXPORTED
#else
#define KOVRA_ASN1_API KOVRA_IMPORTED
#endif

/* How functions are called, the callbacks too: stated, so that programs with another default link. */
#if defined(_WIN32) && (defined(_M_IX86) || defined(__i386__))
#define KOVRA_CALL __cdecl
#else
#define KOVRA_CALL
#endif

/* A C++ compiler is told that nothing here throws. */
#if defined(__cplusplus)
#define KOVRA_NOTHROW noexcept
#define KOVRA_C_BEGIN extern "C" {
#define KOVRA_C_END }
#else
#define KOVRA_NOTHROW
#define KOVRA_C_BEGIN
#define KOVRA_C_END
#endif
/** @endcond */

/** @} */

#endif
