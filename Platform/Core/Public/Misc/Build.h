#pragma once

#ifndef WITH_EDITOR
#define WITH_EDITOR 1
#endif
#ifndef WITH_EDITORONLY_DATA
#define WITH_EDITORONLY_DATA WITH_EDITOR
#endif
#ifndef UE_BUILD_DEVELOPMENT
#define UE_BUILD_DEVELOPMENT 1
#endif
#ifndef UE_BUILD_DEBUG
#define UE_BUILD_DEBUG 0
#endif
#ifndef UE_BUILD_SHIPPING
#define UE_BUILD_SHIPPING 0
#endif
#ifndef UE_BUILD_TEST
#define UE_BUILD_TEST 0
#endif

#define UE_EDITOR WITH_EDITOR
#define DO_CHECK 1
#define DO_ENSURE 1
