#include "Velmora/VelmoraData.h"

#include "KestrixLog.h"
#include "Widgets/SWidget.h"

namespace
{
bool PythonReadyFlag = false;
}

bool UVelmoraData::AddNamedWidget(FName AkaName, FString WidgetPath, TSharedPtr<SWidget> Widget)
{
	const bool bIsNew = !NamedWidget.Contains(AkaName);
	if (!bIsNew)
	{
		UE_LOG(PythonKX, Log, TEXT("Key: %s Has existed in NamedWidget, Widget: %s @ %s"), *AkaName.ToString(),
			*Widget->GetType().ToString(), *GetName());
	}
	NamedWidget.Add(AkaName, Widget);
	NamedWidgetPaths.Add(AkaName, WidgetPath);
	return bIsNew;
}

TSharedPtr<SWidget> UVelmoraData::GetNamedWidget(FName AkaName) const
{
	if (const TSharedPtr<SWidget>* const Widget = NamedWidget.Find(AkaName))
	{
		return *Widget;
	}
	FString Known = TEXT("[");
	for (const auto& Entry : NamedWidget)
	{
		Known = FString::Printf(TEXT("%s%s, "), *Known, *Entry.Key.ToString());
	}
	Known += TEXT("]");
	UE_LOG(PythonKX, Warning, TEXT("Cant't find Widget by name: %s  Availables: %s"), *AkaName.ToString(), *Known);
	return nullptr;
}

TSharedPtr<SWidget> UVelmoraData::FindWidget(FName AkaName) const
{
	return NamedWidget.FindRef(AkaName);
}

bool UVelmoraData::GetPythonFlag()
{
	return PythonReadyFlag;
}

void UVelmoraData::SetPythonFlag(bool bIsReady)
{
	PythonReadyFlag = bIsReady;
}
