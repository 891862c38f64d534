#pragma once

#include "CoreMinimal.h"
#include "Logging/LogMacros.h"

/** The generator and the widgets of tools. */
DECLARE_LOG_CATEGORY_EXTERN(Velmora, VeryVerbose, VeryVerbose);

/** Everything else in the plugin: settings, files, the module, Python commands. */
DECLARE_LOG_CATEGORY_EXTERN(PythonKX, VeryVerbose, VeryVerbose);

/** The library of meshes. */
DECLARE_LOG_CATEGORY_EXTERN(PythonMesh, VeryVerbose, VeryVerbose);

/** What the function libraries share. */
DECLARE_LOG_CATEGORY_EXTERN(KestrixUtils, Log, VeryVerbose);
