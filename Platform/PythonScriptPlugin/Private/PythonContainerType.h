#pragma once

#include "PythonConverter.h"
#include "PythonReferences.h"
#include "Templates/SharedPointer.h"

/** What all values of one kind of array, set or map share. */
struct FPythonContainerType
{
	/** The container's property; owned only if it was made for Python. */
	const FProperty* Property = nullptr;
	TUniquePtr<FProperty> OwnProperty;

	/** Elements of an array or set, keys of a map. */
	const FProperty* ElementProperty = nullptr;
	TUniquePtr<FPythonConverter> Element;

	/** Values of a map; null otherwise. */
	const FProperty* ValueProperty = nullptr;
	TUniquePtr<FPythonConverter> Value;

	/** Null if Python cannot carry the elements. The property lives at least as long as the result. */
	static TSharedPtr<const FPythonContainerType> Of(const FProperty* Property);

	/** A container of values of Python types such as str, unreal.Name or unreal.Actor. Null with a TypeError for other types. */
	static TSharedPtr<const FPythonContainerType> MakeArray(PyObject* ElementType);
	static TSharedPtr<const FPythonContainerType> MakeSet(PyObject* ElementType);
	static TSharedPtr<const FPythonContainerType> MakeMap(PyObject* KeyType, PyObject* ValueType);
};

/** A container that a Python object holds: memory of its own. */
class FPythonContainer : public FPythonReferenceHolder
{
public:
	explicit FPythonContainer(TSharedRef<const FPythonContainerType> InType);
	~FPythonContainer() override;

	void AddReferencedObjects(FReferenceCollector& Collector) override;
	void CopyFrom(const void* Other);

	static FPythonContainer& From(PyObject* Self);

	const TSharedRef<const FPythonContainerType> Type;
	void* const Memory;
};
