#pragma once

#include "PythonRef.h"
#include "Templates/UniquePtr.h"

class FProperty;

/** Carries the values of one property between engine memory and Python. Made once per property, used at each call. */
class FPythonConverter
{
public:
	virtual ~FPythonConverter() = default;

	/**
	 * Writes a value to initialised memory of the property.
	 *
	 * @return False with a TypeError "expected ..., got ..." if the value does not fit; the memory may hold part of it then.
	 */
	virtual bool FromPython(PyObject* Value, void* Address) const = 0;

	/** A new Python value; null with an error only if Python runs out of memory. */
	virtual FPythonRef ToPython(const void* Address) const = 0;

	/** The type of what ToPython gives, as scripts write it: "str", "Array[Name]". */
	virtual FString TypeName() const = 0;

	/** What FromPython takes, as scripts write it: "Union[Name, str]". */
	virtual FString AcceptedTypeName() const { return TypeName(); }

	/** The converter of a property that lives at least as long; null for a kind that Python cannot see. */
	static TUniquePtr<FPythonConverter> Make(const FProperty* Property);
};
