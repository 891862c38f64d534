#include "PythonNaming.h"

#include <gtest/gtest.h>

struct FNamingVector
{
	const TCHAR* CppName;
	const TCHAR* PythonName;
};

static void ExpectEach(const TArray<FNamingVector>& Vectors, FString (*Convert)(const FString&))
{
	for (const FNamingVector& Vector : Vectors)
	{
		EXPECT_TRUE(Convert(Vector.CppName).Equals(Vector.PythonName))
			<< testing::PrintToString(FString(Vector.CppName)) << " became " << testing::PrintToString(Convert(Vector.CppName));
	}
}

TEST(PythonNaming, FunctionsSplitAtWordsButNotBeforeDigits)
{
	ExpectEach(
		{
			{TEXT("FillDataTableFromCSVFile"), TEXT("fill_data_table_from_csv_file")},
			{TEXT("RegisterTabAndGetID"), TEXT("register_tab_and_get_id")},
			{TEXT("ClearRenderTarget2D"), TEXT("clear_render_target2d")},
			{TEXT("ConvertRenderTargetToTexture2DEditorOnly"), TEXT("convert_render_target_to_texture2d_editor_only")},
			{TEXT("BuildString_Bool"), TEXT("build_string_bool")},
			{TEXT("K2_AttachTo"), TEXT("k2_attach_to")},
			{TEXT("MaterialExpressionEditorX"), TEXT("material_expression_editor_x")},
			{TEXT("GetText"), TEXT("get_text")},
			{TEXT("GetComboBoxItems"), TEXT("get_combo_box_items")},
			{TEXT("PushBreadcrumb_String"), TEXT("push_breadcrumb_string")},
			{TEXT("GetHLSLCode"), TEXT("get_hlsl_code")},
			{TEXT("SetUVs"), TEXT("set_u_vs")},
		},
		&PythonNaming::ToSnakeCase);
}

TEST(PythonNaming, BoolPropertiesLoseTheirPrefix)
{
	ExpectEach(
		{
			{TEXT("bGenerateLightmapUVs"), TEXT("generate_lightmap_u_vs")},
			{TEXT("bImportMeshLODs"), TEXT("import_mesh_lo_ds")},
			{TEXT("bUseThing"), TEXT("use_thing")},
			{TEXT("border"), TEXT("border")},
		},
		[](const FString& Name) { return PythonNaming::PropertyName(Name, true); });
	EXPECT_EQ(PythonNaming::PropertyName(TEXT("bCount"), false), TEXT("b_count"));
}

TEST(PythonNaming, InputsLoseInAndOutputsKeepOut)
{
	ExpectEach({{TEXT("InXY"), TEXT("xy")}, {TEXT("InBlueprint"), TEXT("blueprint")}, {TEXT("InputNames"), TEXT("input_names")}},
		[](const FString& Name) { return PythonNaming::ParameterName(Name, false, true); });
	EXPECT_EQ(PythonNaming::ParameterName(TEXT("bInAllJoysticks"), true, true), TEXT("all_joysticks"));
	EXPECT_EQ(PythonNaming::ParameterName(TEXT("OutAssetData"), false, false), TEXT("out_asset_data"));
	EXPECT_EQ(PythonNaming::ParameterName(TEXT("OutXY"), false, false), TEXT("out_xy"));
}

TEST(PythonNaming, EnumEntriesAreUpperCase)
{
	ExpectEach({{TEXT("BLEND_AlphaComposite"), TEXT("BLEND_ALPHA_COMPOSITE")}, {TEXT("E16Bit"), TEXT("E16_BIT")}},
		&PythonNaming::ToUpperSnakeCase);
}

TEST(PythonNaming, ReservedWordsGetAnUnderscoreAtTheEnd)
{
	ExpectEach({{TEXT("Property"), TEXT("property_")}, {TEXT("From"), TEXT("from_")}, {TEXT("Class"), TEXT("class_")},
				   {TEXT("Type"), TEXT("type")}, {TEXT("Filter"), TEXT("filter")}},
		&PythonNaming::ToSnakeCase);
}
