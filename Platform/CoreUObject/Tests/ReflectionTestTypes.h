#pragma once

#include "Templates/SubclassOf.h"
#include "UObject/NoExportTypes.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtr.h"
#include "ReflectionTestTypes.generated.h"

/** A colour of the test. */
UENUM(BlueprintType)
enum class ETestColour : uint8
{
	/** Like a rose. */
	Red UMETA(DisplayName = "Deep Red"),
	Green = 5,
	Secret UMETA(Hidden),
};

UENUM()
namespace ETestShape
{
enum Type
{
	Round,
	Square = 7,
};
}

USTRUCT(BlueprintType)
struct FTestPair
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	int32 Number = 3;

	UPROPERTY()
	FString Label = TEXT("pair");

	UPROPERTY()
	UObject* Object = nullptr;

	UPROPERTY()
	TArray<FTestPair> Children;
};

USTRUCT()
struct FTestTriple : public FTestPair
{
	GENERATED_BODY()

	UPROPERTY()
	FName Third;

	friend uint32 GetTypeHash(const FTestTriple& Triple) { return GetTypeHash(Triple.Third); }
	bool operator==(const FTestTriple& Other) const { return Third == Other.Third; }
};

/** Like the vectors of Core: without arguments its numbers stay unset. */
USTRUCT()
struct FTestForced
{
	GENERATED_BODY()

	FTestForced() {}
	explicit FTestForced(int64 InNumber)
		: Number(InNumber + 1)
	{
	}
	explicit FTestForced(EForceInit)
		: Number(0)
	{
	}

	UPROPERTY()
	int64 Number;
};

/** Has no constructor that forces; one number must not be taken for it. */
USTRUCT()
struct FTestUnforced
{
	GENERATED_BODY()

	FTestUnforced() = default;
	FTestUnforced(int64 InNumber)
		: Number(InNumber)
	{
	}

	UPROPERTY()
	int64 Number = 4;
};

/**
 * One property of each kind.
 *
 * Its second paragraph.
 */
UCLASS(BlueprintType, Blueprintable, meta = (Custom = "Yes, \"quoted\""))
class UTestObject : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Test")
	bool bNative = false;

	UPROPERTY()
	uint32 bFirst : 1;

	UPROPERTY()
	uint32 bSecond : 1;

	UPROPERTY()
	int8 Int8 = 0;

	UPROPERTY()
	int16 Int16 = 0;

	/** Counts. */
	UPROPERTY(EditAnywhere, Category = "Test|Numbers", meta = (ClampMin = "0"))
	int32 Int32 = 0;

	UPROPERTY()
	int64 Int64 = 0;

	UPROPERTY()
	uint8 Byte = 0;

	UPROPERTY()
	uint16 UInt16 = 0;

	UPROPERTY()
	uint32 UInt32 = 0;

	UPROPERTY()
	uint64 UInt64 = 0;

	UPROPERTY()
	float Float = 0.0f;

	UPROPERTY()
	double Double = 0.0;

	UPROPERTY()
	FString String;

	UPROPERTY()
	FName Name;

	UPROPERTY()
	FText Text;

	UPROPERTY()
	ETestColour Colour = ETestColour::Red;

	UPROPERTY()
	TEnumAsByte<ETestShape::Type> Shape = ETestShape::Round;

	UPROPERTY()
	UObject* Object = nullptr;

	UPROPERTY()
	TObjectPtr<UTestObject> Wrapped;

	UPROPERTY()
	UClass* Class = nullptr;

	UPROPERTY()
	TSubclassOf<UTestObject> Subclass;

	UPROPERTY()
	TWeakObjectPtr<UObject> Weak;

	UPROPERTY()
	FVector Vector = FVector(1.0, 2.0, 3.0);

	UPROPERTY()
	FTestPair Pair;

	UPROPERTY()
	TArray<UObject*> Objects;

	UPROPERTY()
	TArray<int32> Numbers;

	UPROPERTY()
	TArray<FTestPair> Pairs;

	UPROPERTY()
	TSet<UObject*> ObjectSet;

	UPROPERTY()
	TSet<FName> Names;

	UPROPERTY()
	TMap<UObject*, int32> ByObject;

	UPROPERTY()
	TMap<FName, UObject*> ObjectsByName;

	UPROPERTY()
	TMap<FString, float> Weights;

	UPROPERTY()
	UObject* Fixed[2] = {};

	UFUNCTION(BlueprintCallable, Category = "Test")
	bool GetLabel(FName Which, FString& OutLabel) const;

	/**
	 * Adds up.
	 *
	 * @param B  Ten, unless given.
	 */
	UFUNCTION(BlueprintPure, Category = "Test", meta = (Keywords = "sum"))
	static int32 Add(int32 A, int32 B = 10) { return A + B; }

	UFUNCTION(BlueprintCallable, Category = "Test")
	static FString Describe(const FString& Text, FName Name = NAME_None, float Scale = 1.5f, bool bLoud = true,
		FVector2D Size = FVector2D(0, 0), const FLinearColor& Colour = FLinearColor(1, 1, 1), FVector Where = FVector(1, 2, 3),
		ETestColour Kind = ETestColour::Green, UObject* Object = nullptr, const FString& End = "!");

	UFUNCTION(BlueprintCallable, Category = "Test")
	static void Grow(UPARAM(ref) TArray<int32>& Numbers, int32 By);

	UFUNCTION(Exec)
	void Remember(const FString& What);

	UFUNCTION(BlueprintCallable, Category = "Test")
	virtual TMap<FString, float> GetWeights() { return Weights; }

private:
	UFUNCTION(BlueprintCallable, Category = "Test")
	static const FText GetHidden() { return FText::FromString(TEXT("hidden")); }
};

UCLASS()
class UTestChild : public UTestObject
{
	GENERATED_BODY()

public:
	/** A child with a constructor of its own. */
	UTestChild();

	UPROPERTY()
	int32 Own = 1;

	UPROPERTY()
	int32 Further = 2;

	UPROPERTY()
	int32 Old_DEPRECATED = 0;
};

UCLASS(Abstract)
class UTestAbstract : public UObject
{
	GENERATED_BODY()
};

/** Counts its ends and refers to an object that no property knows. */
UCLASS()
class UTestLifetime : public UObject
{
	GENERATED_UCLASS_BODY()

	static int32 NumBegun;
	static int32 NumFinished;
	static int32 NumDestroyed;

	~UTestLifetime();
	void BeginDestroy() override;
	void FinishDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

	UObject* Unreflected = nullptr;
};
