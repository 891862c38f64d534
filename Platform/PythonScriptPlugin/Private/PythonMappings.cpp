#include "PythonMappings.h"

static bool IsPair(PyObject* Item)
{
	return PyTuple_Check(Item) && PyTuple_GET_SIZE(Item) == 2;
}

FPythonRef PythonMappings::ItemsOf(PyObject* Mapping)
{
	FPythonRef Items = FPythonRef::Steal(PyMapping_Items(Mapping));
	for (Py_ssize_t Index = 0; Items && Index < PyList_GET_SIZE(Items.Get()); ++Index)
	{
		if (!IsPair(PyList_GET_ITEM(Items.Get(), Index)))
		{
			PyErr_Format(PyExc_TypeError, "items() of a '%s' gives something other than pairs", Py_TYPE(Mapping)->tp_name);
			return FPythonRef();
		}
	}
	return Items;
}
