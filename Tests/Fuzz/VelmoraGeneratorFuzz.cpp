#include "FuzzEnvironment.h"
#include "Velmora/VelmoraGenerator.h"
#include "Widgets/SWidget.h"

// A tool of any bytes gives a widget that can be measured.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	StartFuzzEnvironment();
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, size_t Size)
{
	const FString Path = WriteFuzzFile(TEXT("Tool.json"), Data, Size);
	GenerateWidgetFromFile(Path, TEXT("Root"), nullptr)->SlatePrepass(1.0f);
	return 0;
}
