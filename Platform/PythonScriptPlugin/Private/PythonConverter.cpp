#include "PythonConverter.h"

#include "PythonContainerConverters.h"
#include "PythonObjectConverters.h"
#include "PythonValueConverters.h"

TUniquePtr<FPythonConverter> FPythonConverter::Make(const FProperty* Property)
{
	for (const auto MakeConverter :
		{&PythonConverters::MakeForValue, &PythonConverters::MakeForObject, &PythonConverters::MakeForContainer})
	{
		if (TUniquePtr<FPythonConverter> Converter = MakeConverter(Property))
		{
			return Converter;
		}
	}
	return nullptr;
}
