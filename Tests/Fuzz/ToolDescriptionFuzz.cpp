#include "Dom/JsonObject.h"
#include "FuzzEnvironment.h"
#include "Velmora/DescriptionText.h"
#include "Velmora/ToolDescription.h"

// A description of any bytes is read or refused; a neighbour and itself are there to be included.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
	StartFuzzEnvironment();
	const ANSICHAR Part[] = "\"Part\": 1, // end\n\"ExternalJson\": \"Tool.json\"\n";
	WriteFuzzFile(TEXT("Part.json"), reinterpret_cast<const uint8*>(Part), sizeof(Part) - 1);
	return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8* Data, size_t Size)
{
	const FString Path = WriteFuzzFile(TEXT("Tool.json"), Data, Size);

	FDescriptionText Text;
	FString Error;
	if (ReadDescriptionText(Path, Text, Error))
	{
		int32 NumLines = 0;
		for (const TCHAR Character : Text.Text)
		{
			NumLines += Character == TEXT('\n');
		}
		check(NumLines == Text.Places.Num());
		Text.DescribePlace(NumLines / 2);
	}

	FString First;
	FString Second;
	FVector2D Size2D;
	FVector2D Position;
	TSharedPtr<FJsonObject> Menu;
	GetDataAndTabLabel(Path, First, Second);
	GetInitPyCmd(Path, First);
	GetInitTabGeometry(Path, Size2D, Position);
	GetOnTabContextMenu(Path, Menu);
	return 0;
}
