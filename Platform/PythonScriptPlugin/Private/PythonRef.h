#pragma once

#include "CoreMinimal.h"
#include <Python.h>

/** Owns one reference to a Python object, or nothing. The only place that counts references. */
class FPythonRef
{
public:
	FPythonRef() = default;

	FPythonRef(const FPythonRef& Other)
		: Object(Other.Object)
	{
		Py_XINCREF(Object);
	}

	FPythonRef(FPythonRef&& Other)
		: Object(Other.Object)
	{
		Other.Object = nullptr;
	}

	~FPythonRef() { Py_XDECREF(Object); }

	FPythonRef& operator=(FPythonRef Other)
	{
		Swap(Object, Other.Object);
		return *this;
	}

	/** Takes over the reference that the caller owns, such as the result of most Python calls. */
	static FPythonRef Steal(PyObject* Object)
	{
		FPythonRef Result;
		Result.Object = Object;
		return Result;
	}

	/** Adds a reference to an object that somebody else owns. */
	static FPythonRef Borrow(PyObject* Object)
	{
		Py_XINCREF(Object);
		return Steal(Object);
	}

	PyObject* Get() const { return Object; }
	explicit operator bool() const { return Object != nullptr; }

	/** Hands the reference to the caller, as the result of a function that Python calls. */
	PyObject* Release()
	{
		PyObject* const Released = Object;
		Object = nullptr;
		return Released;
	}

	/** Drops the reference. */
	void Reset() { *this = FPythonRef(); }

private:
	PyObject* Object = nullptr;
};

/** A reference of static lifetime. All of them let go before the interpreter ends. */
class FPythonGlobalRef
{
public:
	FPythonGlobalRef();
	FPythonGlobalRef(const FPythonGlobalRef&) = delete;
	FPythonGlobalRef& operator=(const FPythonGlobalRef&) = delete;

	FPythonGlobalRef& operator=(FPythonRef InRef)
	{
		Ref = MoveTemp(InRef);
		return *this;
	}

	PyObject* Get() const { return Ref.Get(); }
	PyTypeObject* GetType() const { return reinterpret_cast<PyTypeObject*>(Ref.Get()); }
	const FPythonRef& GetRef() const { return Ref; }
	explicit operator bool() const { return static_cast<bool>(Ref); }

	static void ReleaseAll();

private:
	FPythonRef Ref;
	FPythonGlobalRef* const Next;
};
