#pragma once

#include <cstddef>
#include <cstdint>

#define PLATFORM_WINDOWS 0
#define PLATFORM_MAC 0
#define PLATFORM_LINUX 1
#define PLATFORM_UNIX 1
#define PLATFORM_DESKTOP 1
#define PLATFORM_64BITS 1
#define PLATFORM_LITTLE_ENDIAN 1

#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#define RESTRICT __restrict
#define LIKELY(Condition) __builtin_expect(!!(Condition), 1)
#define UNLIKELY(Condition) __builtin_expect(!!(Condition), 0)
#define DLLEXPORT __attribute__((visibility("default")))
#define DLLIMPORT __attribute__((visibility("default")))
#define NO_API
#define MS_ALIGN(Bytes)
#define GCC_ALIGN(Bytes) __attribute__((aligned(Bytes)))
#define UE_DEPRECATED(Version, Message)

#define LINE_TERMINATOR TEXT("\n")

using int8 = int8_t;
using int16 = int16_t;
using int32 = int32_t;
using int64 = long long;
using uint8 = uint8_t;
using uint16 = uint16_t;
using uint32 = uint32_t;
using uint64 = unsigned long long;
using UPTRINT = uint64_t;
using PTRINT = int64_t;
using SIZE_T = size_t;
using SSIZE_T = ptrdiff_t;
using TYPE_OF_NULLPTR = decltype(nullptr);

/** One byte of narrow text. Where it comes from outside it holds UTF-8. */
using ANSICHAR = char;
/** One UTF-16 code unit. */
using WIDECHAR = char16_t;
using TCHAR = WIDECHAR;

#define TEXT_PASTE(Literal) u##Literal
#define TEXT(Literal) TEXT_PASTE(Literal)

static_assert(sizeof(int64) == 8 && sizeof(TCHAR) == 2, "The platform's types have the engine's sizes");
