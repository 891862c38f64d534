#pragma once

#include "PythonConverter.h"

class UStruct;

/** A property of a class or structure as scripts see it. */
class FPythonProperty
{
public:
	explicit FPythonProperty(FProperty* InProperty);

	FProperty* GetProperty() const { return Property; }
	const FString& GetName() const { return Name; }
	const FPythonConverter& GetConverter() const { return *Converter; }

	/** Is there an attribute for it? */
	bool IsAttribute() const;
	/** May the attribute be assigned? */
	bool IsAttributeWritable() const;
	/** May set_editor_property change it? */
	bool IsEditable() const;

	FPythonRef Get(const void* Container) const;

	/** Writes the value to memory of the property's own. False with a TypeError naming owner and property if it does not fit. */
	bool Convert(PyObject* Value, void* Converted) const;

	/** Sets the property if the value fits. False with a TypeError if not; nothing has changed then. */
	bool Set(void* Container, PyObject* Value) const;

	/** False for kinds that Python cannot carry, and for what is neither editable nor visible to scripts. */
	static bool IsExposed(const FProperty* Property);

private:
	FProperty* Property;
	FString Name;
	TUniquePtr<FPythonConverter> Converter;
};

/** The exposed properties of a class or structure with those of its parents. */
class FPythonPropertyTable
{
public:
	/** The table of a native type is made once; of one that was made at run time, and may go or change, anew. */
	static TSharedRef<const FPythonPropertyTable> Of(const UStruct* Struct);

	/** Takes the Python name or the C++ name, this in any case. Null if there is none. */
	const FPythonProperty* Find(const FString& Name) const;

	/** In declared order, the parents' first. */
	const TArray<TUniquePtr<FPythonProperty>>& GetAll() const { return Properties; }

	explicit FPythonPropertyTable(const UStruct* Struct);

	static void ReleaseAll();

private:
	TArray<TUniquePtr<FPythonProperty>> Properties;
	/** By name; maps of the engine ignore case. */
	TMap<FString, const FPythonProperty*> ByName;
};

/** The getters and setters of properties as attributes of a type. */
namespace PythonProperty
{
/** Gives the type an attribute for each script-visible property that Struct itself declares. */
bool AddAttributes(PyTypeObject* Type, const UStruct* Struct);

/** The property of that name; null with an error naming the type. */
const FPythonProperty* FindOrRaise(const FPythonPropertyTable& Table, const UStruct* Struct, PyObject* Name);
}
