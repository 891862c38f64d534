#include "PythonContainerIterator.h"

#include "PythonTypeSpec.h"

using PythonContainerIterator::FPlaces;

struct FPythonContainerWalk
{
	/** Null at the end. */
	FPythonRef Container;
	const FPlaces* Places;
	bool bBackwards;
	/** The elements at the beginning; -1 after an error, which comes again then. */
	int32 Num;
	int32 Next;
};

/** The next place that has an element, INDEX_NONE at the end. */
static int32 TakePlace(FPythonContainerWalk& Walk)
{
	PyObject* const Container = Walk.Container.Get();
	const int32 Step = Walk.bBackwards ? -1 : 1;
	const int32 End = Walk.Places->MaxIndex(Container);
	for (int32 Index = Walk.Next; Index >= 0 && Index < End; Index += Step)
	{
		if (Walk.Places->IsValid(Container, Index))
		{
			Walk.Next = Index + Step;
			return Index;
		}
	}
	return INDEX_NONE;
}

static PyObject* NextElement(PyObject* Self)
{
	FPythonContainerWalk& Walk = PythonTypes::StateOf<FPythonContainerWalk>(Self);
	if (!Walk.Container)
	{
		return nullptr;
	}
	if (Walk.Num != Walk.Places->Num(Walk.Container.Get()))
	{
		Walk.Num = -1;
		return PyErr_Format(PyExc_RuntimeError, "%s changed size during iteration", Py_TYPE(Walk.Container.Get())->tp_name);
	}
	const int32 Place = TakePlace(Walk);
	if (Place == INDEX_NONE)
	{
		Walk.Container.Reset();
		return nullptr;
	}
	return Walk.Places->At(Walk.Container.Get(), Place).Release();
}

static PyTypeObject* WalkType()
{
	static FPythonGlobalRef Type;
	if (!Type)
	{
		Type = FPythonTypeSpec::Of<FPythonContainerWalk>("unreal._ContainerIterator", Py_TPFLAGS_DISALLOW_INSTANTIATION)
				   .Function(Py_tp_iter, &PyObject_SelfIter)
				   .Function(Py_tp_iternext, &NextElement)
				   .Make();
	}
	return Type.GetType();
}

FPythonRef PythonContainerIterator::Make(PyObject* Container, const FPlaces& Places, bool bBackwards)
{
	const int32 First = bBackwards ? Places.MaxIndex(Container) - 1 : 0;
	return PythonTypes::New<FPythonContainerWalk>(
		WalkType(), FPythonRef::Borrow(Container), &Places, bBackwards, Places.Num(Container), First);
}
