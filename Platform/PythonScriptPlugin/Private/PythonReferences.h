#pragma once

#include "CoreMinimal.h"

class FProperty;
class FReferenceCollector;

/** Engine memory that a Python value holds and that may refer to objects, which it keeps from being collected. */
class FPythonReferenceHolder
{
public:
	/** Without references of its own the holder need not be known to the collector. */
	explicit FPythonReferenceHolder(bool bContainsReferences);
	virtual ~FPythonReferenceHolder();
	FPythonReferenceHolder(const FPythonReferenceHolder&) = delete;
	FPythonReferenceHolder& operator=(const FPythonReferenceHolder&) = delete;

	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;

private:
	friend class FPythonReferences;

	FPythonReferenceHolder* Next = nullptr;
	FPythonReferenceHolder** Link = nullptr;
};

/** Tells the garbage collector what Python holds, from Start to Stop. */
class FPythonReferences
{
public:
	static void Start();
	static void Stop();

private:
	class FCollectorSide;
};

/** An initialised value of a property for the time of a scope. */
class FScopedPropertyValue
{
public:
	explicit FScopedPropertyValue(const FProperty* InProperty);
	~FScopedPropertyValue();
	FScopedPropertyValue(const FScopedPropertyValue&) = delete;
	FScopedPropertyValue& operator=(const FScopedPropertyValue&) = delete;

	void* Get() const { return Memory; }

private:
	const FProperty* const Property;
	void* const Memory;
};
