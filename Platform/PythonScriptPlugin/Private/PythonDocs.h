#pragma once

#include "CoreMinimal.h"

class FPythonFunction;

/** The texts that help(), stubs and editors show. */
namespace PythonDocs
{
/** Signature, tool tip, arguments and result of a function. */
FString Describe(const FPythonFunction& Function);

/** The form that inspect.signature() reads: "($self, aka_name, offset=0)". */
FString TextSignature(const FPythonFunction& Function);

/** The parameters with their types, as a stub writes them: "aka_name: Union[Name, str], offset: int = 0". */
FString TypedParameters(const FPythonFunction& Function);
}
