#pragma once

#include "CoreMinimal.h"
#include "UObject/NoExportTypes.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"
#include "PythonTestTypes.generated.h"

/** A colour to choose. */
UENUM(BlueprintType)
enum class EPythonTestColor : uint8
{
	Red,
	LightGreen = 5,
	Secret UMETA(Hidden),
};

/** A place with a label. */
USTRUCT(BlueprintType)
struct FPythonTestPlace
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	double X = 0.0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	int32 Floor = 7;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FString Label;
};

/** An object with a property of each kind. */
UCLASS(BlueprintType)
class UPythonTestObject : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	int32 Count = 3;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	bool bIsEnabled = true;

	/** Text at the top. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FString Title;

	UPROPERTY(BlueprintReadOnly, Category = "Test")
	float Fixed = 0.5f;

	UPROPERTY(EditAnywhere, Category = "Test")
	int32 Hidden = 11;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	UPythonTestObject* Other = nullptr;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	FPythonTestPlace Place;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	EPythonTestColor Color = EPythonTestColor::Red;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	TArray<FString> Lines;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	TMap<FString, int32> Ages;

	/** Names of the properties that an edit changed. */
	TArray<FString> Edits;

	void PostEditChangeProperty(FPropertyChangedEvent& Event) override;

	UFUNCTION(BlueprintCallable, Category = "Test")
	void SetText(FName AkaName, FString Text);

	/**
	 * Reads a text.
	 *
	 * @param AkaName  Whose text.
	 * @param OutText  The text.
	 * @return Whether there is one.
	 */
	UFUNCTION(BlueprintCallable, Category = "Test")
	bool GetText(FName AkaName, FString& OutText) const;

	UFUNCTION(BlueprintCallable, Category = "Test")
	int32 ScrollTo(FName AkaName, int32 LineIndex = 4, const int32 Offset = -1);

	/** Garbage before the call ends. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	void DestroyYourself();

	TMap<FName, FString> Texts;
};

/** A child, for tests of casts. */
UCLASS(BlueprintType)
class UPythonTestChild : public UPythonTestObject
{
	GENERATED_BODY()
};

/** Nobody can make one. */
UCLASS(Abstract)
class UPythonTestAbstract : public UObject
{
	GENERATED_BODY()
};

/** One function for each way to pass and to return. */
UCLASS(meta = (ScriptName = "PythonTestFunctions"))
class UPythonTestLibrary : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Test")
	static void Nothing();

	UFUNCTION(BlueprintCallable, Category = "Test")
	static void OneOut(int32 InNumber, int32& OutDouble);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static void TwoOuts(int32& OutFirst, int32 Number, FString& OutSecond);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static bool PlainBool(bool bInValue);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static bool BoolAndBool(bool bSucceed, bool& bOutValue);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static bool BoolAndTwo(bool bSucceed, int32& OutFirst, int32& OutSecond);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FString NumberAndOut(int32 Number, int32& OutNext);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static int32 ByReference(UPARAM(ref) TArray<FString>& Items);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FString ConstReference(const FString& Text);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FString Defaults(int32 Number = 5, FString Text = TEXT("abc"), FName Name = NAME_None, bool bFlag = true,
		FVector2D Point = FVector2D(1.0, 2.0), EPythonTestColor Color = EPythonTestColor::LightGreen);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static int32 EchoInt(int32 Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static int64 EchoInt64(int64 Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static uint8 EchoByte(uint8 Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static float EchoFloat(float Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FString EchoString(const FString& Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FName EchoName(FName Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FText EchoText(FText Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static UPythonTestObject* EchoObject(UPythonTestObject* Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static UClass* EchoClass(TSubclassOf<UPythonTestObject> Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FPythonTestPlace EchoPlace(const FPythonTestPlace& Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FLinearColor EchoColor(FLinearColor Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static EPythonTestColor EchoEnum(EPythonTestColor Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static TArray<FName> EchoNames(const TArray<FName>& Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static TArray<UPythonTestObject*> EchoObjects(const TArray<UPythonTestObject*>& Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static TSet<FString> EchoSet(const TSet<FString>& Value);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static TMap<FString, float> EchoMap(const TMap<FString, float>& Value);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptName = "NiceName;OldName"))
	static int32 K2_UglyName();

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (DeprecatedFunction, DeprecationMessage = "Use echo_int."))
	static int32 Outdated();

	UFUNCTION(BlueprintCallable, Category = "Test")
	static bool RunCommand(const FString& Command);

	UFUNCTION(BlueprintCallable, Category = "Test")
	static void CollectGarbage();

	/** Keywords of Python as names of parameters. */
	UFUNCTION(BlueprintCallable, Category = "Test")
	static int32 Reserved(int32 From, int32 Property);

	/** Not for scripts. */
	UFUNCTION()
	static int32 Unexposed(int32 Number);
};

/** Functions that show on other types. */
UCLASS(meta = (ScriptName = "PythonTestHostedFunctions"))
class UPythonTestHostedLibrary : public UObject
{
	GENERATED_BODY()

public:
	/** How far it is to the other place. */
	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptMethod = "StepsTo;Steps"))
	static int32 CountSteps(const FPythonTestPlace& Place, const FPythonTestPlace& Other, int32 Stride = 2);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptMethod))
	static int32 LiftPlace(UPARAM(ref) FPythonTestPlace& Place, int32 Floors);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptMethod = "Relabel", ScriptMethodSelfReturn))
	static FPythonTestPlace WithLabel(const FPythonTestPlace& Place, const FString& Label);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptMethod = "CountOf"))
	static int32 GetCountOf(const UPythonTestObject* Object, int32 Factor = 1);

	UFUNCTION(BlueprintPure, Category = "Test", meta = (ScriptOperator = "<<;<<="))
	static FPythonTestPlace LabelledBy(const FPythonTestPlace& Place, const FString& Label);

	UFUNCTION(BlueprintPure, Category = "Test", meta = (ScriptOperator = "<<;<<="))
	static FPythonTestPlace OnFloor(const FPythonTestPlace& Place, int32 Floor);

	UFUNCTION(BlueprintPure, Category = "Test", meta = (ScriptOperator = "%"))
	static int32 FloorModulo(const FPythonTestPlace& Place, int32 Divisor);

	UFUNCTION(BlueprintPure, Category = "Test", meta = (ScriptOperator = "bool"))
	static bool HasLabel(const FPythonTestPlace& Place);

	UFUNCTION(BlueprintPure, Category = "Test", meta = (ScriptOperator = "=="))
	static bool OnSameFloor(const FPythonTestPlace& Place, const FPythonTestPlace& Other);

	UFUNCTION(BlueprintPure, Category = "Test", meta = (ScriptConstant = "Cellar"))
	static FPythonTestPlace MakeCellar();

	UFUNCTION(BlueprintPure, Category = "Test",
		meta = (ScriptConstant = "LowestFloor", ScriptConstantHost = "/Script/PythonScriptPluginTests.PythonTestPlace"))
	static int32 GetLowestFloor();
};

/** Functions that cannot be what their metadata says. */
UCLASS(meta = (ScriptName = "PythonTestMisplacedFunctions"))
class UPythonTestMisplacedLibrary : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptOperator = "+"))
	static void WithoutResult(const FPythonTestPlace& Place, int32 Number);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptOperator = "@"))
	static int32 WithUnknownSign(const FPythonTestPlace& Place, int32 Number);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptOperator = "<"))
	static int32 WithoutTruth(const FPythonTestPlace& Place, int32 Number);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptMethod = "Nowhere"))
	static int32 OfNumber(int32 Number);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptMethod = "Member"))
	int32 OfMember(const FPythonTestPlace& Place);

	UFUNCTION(BlueprintCallable, Category = "Test", meta = (ScriptConstant = "Changing"))
	static FPythonTestPlace WithParameter(int32 Number);
};
