#pragma once

#include "UObject/Script.h"
#include "UObject/UObjectBaseUtility.h"

class FObjectInitializer;
class FOutputDevice;
class FProperty;
class FReferenceCollector;
class UFunction;
class UWorld;
struct FPropertyChangedEvent;

/** The root of all classes that the object system makes, names, reflects and collects. */
class COREUOBJECT_API UObject : public UObjectBaseUtility
{
public:
	DECLARE_CLASS(UObject, UObjectBaseUtility)
	DEFINE_DEFAULT_OBJECT_INITIALIZER_CONSTRUCTOR_CALL(UObject)

	UObject() = default;
	explicit UObject(const FObjectInitializer&) {}

	/** Called once all properties have their first values. */
	virtual void PostInitProperties() {}
	/** Before destruction: let go of what is not memory. An override ends with the parent's. */
	virtual void BeginDestroy();
	/** Last call before the destructor. An override ends with the parent's. */
	virtual void FinishDestroy();
	virtual void PostRename(UObject* OldOuter, const FName OldName) {}

	/** The world that the object lives in, its outer's unless a class knows better. Null outside of worlds. */
	virtual UWorld* GetWorld() const;
	/** True for what a content browser would list: a public object directly in a package. */
	virtual bool IsAsset() const;

	/** Says that the object is about to change; marks the package dirty if asked to. Returns true if a transaction recorded it. */
	virtual bool Modify(bool bAlwaysMarkDirty = true);

	virtual void PreEditChange(FProperty* PropertyAboutToChange) {}
	/** For a change that no single property explains. */
	void PostEditChange();
	/** Tells FCoreUObjectDelegates::OnObjectPropertyChanged. An override calls the parent's. */
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);

	/**
	 * Gives the object another name, another outer or both. A null or empty name makes a new one, a null outer keeps the outer.
	 *
	 * @return False, with an Error in LogObj, for a name that is taken, an outer within the object, and what keeps its name and
	 * place: default objects, types and functions, the packages of modules and the transient package.
	 */
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, uint32 Flags = 0);

	UFunction* FindFunction(FName InName) const;
	UFunction* FindFunctionChecked(FName InName) const;
	/** Calls a function with its packed parameters, which hold the return value and out parameters afterwards. */
	virtual void ProcessEvent(UFunction* Function, void* Parms);
	/**
	 * Calls "Name Arg Arg"; quotes keep an argument together, what is missing takes its default.
	 *
	 * @param Ar  Takes complaints about arguments that do not parse.
	 * @param Executor  Goes into the first object parameter, unless null.
	 * @param bForceCallWithNonExec  Without it only functions marked Exec are called.
	 * @return False if there is no such function, or an argument does not parse.
	 */
	bool CallFunctionByNameWithArguments(
		const TCHAR* Cmd, FOutputDevice& Ar, UObject* Executor, bool bForceCallWithNonExec = false);

	/** The object that gives a new one of this class in this outer its values: the class default object. */
	UObject* GetArchetype() const;

	/** What the class refers to beyond its reflected properties. A class hides this with its own and calls Super's. */
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};
