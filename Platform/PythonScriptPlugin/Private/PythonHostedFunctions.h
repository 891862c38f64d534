#pragma once

class UClass;

/** Static functions of libraries that show on other types too, as their metadata says: as methods, operators or constants. */
namespace PythonHostedFunctions
{
/**
 * Gives other types what the functions of a class are to them.
 *
 * Methods (ScriptMethod) and operators (ScriptOperator) belong to the structure or class of the first parameter, constants
 * (ScriptConstant) to that which ScriptConstantHost names by its path, otherwise to the structure that the function returns.
 *
 * @return False with a Python error when memory runs out.
 */
bool Add(const UClass* Class);
}
