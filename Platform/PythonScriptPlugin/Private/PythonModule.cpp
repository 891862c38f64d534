#include "PythonModule.h"

#include "PythonContainers.h"
#include "PythonEnum.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonIterators.h"
#include "PythonModuleFunctions.h"
#include "PythonName.h"
#include "PythonObjects.h"
#include "PythonProperty.h"
#include "PythonShutdownCallbacks.h"
#include "PythonSlateTicks.h"
#include "PythonSlowTask.h"
#include "PythonStruct.h"
#include "PythonStructFields.h"
#include "PythonText.h"
#include "PythonTypeTable.h"

static PyModuleDef GModuleDefinition = {
	PyModuleDef_HEAD_INIT,
	"unreal",
	"What the editor offers to scripts. Names, types and functions follow from the engine's own.",
	-1,
	nullptr,
	nullptr,
	nullptr,
	nullptr,
	nullptr,
};

static FPythonGlobalRef GModule;

using FRegister = bool (*)(PyObject* Module);

static const FRegister GParts[] = {
	&PythonModuleFunctions::Register,
	&PythonSlateTicks::Register,
	&PythonShutdownCallbacks::Register,
	&PythonName::Register,
	&PythonText::Register,
	&PythonContainers::Register,
	&PythonEnum::RegisterBase,
	&PythonStruct::RegisterBase,
	&PythonObjects::RegisterBase,
	&PythonIterators::Register,
	&PythonSlowTask::Register,
	&PythonTypeTable::Update,
};

bool PythonModule::Create()
{
	GModule = FPythonRef::Steal(PyModule_Create(&GModuleDefinition));
	if (!GModule)
	{
		return false;
	}
	for (const FRegister Register : GParts)
	{
		if (!Register(GModule.Get()))
		{
			return false;
		}
	}
	PyObject* const Modules = PySys_GetObject("modules");
	return PyDict_SetItemString(Modules, "unreal", GModule.Get()) == 0 &&
		PyDict_SetItemString(FPythonInterpreter::ConsoleGlobals(), "unreal", GModule.Get()) == 0 &&
		FPythonInterpreter::CallBootstrap("register_collections", GModule.Get());
}

void PythonModule::Update()
{
	if (!PythonTypeTable::Update(GModule.Get()))
	{
		PythonErrors::Report();
	}
}

PyObject* PythonModule::Get()
{
	return GModule.Get();
}

void PythonModule::Release()
{
	PythonSlateTicks::ReleaseAll();
	PythonObjects::ReleaseAll();
	PythonEnum::ReleaseAll();
	PythonStructFields::ReleaseAll();
	FPythonPropertyTable::ReleaseAll();
	PythonTypeTable::ReleaseAll();
}
