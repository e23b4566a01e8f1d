#include "typelib/msft_reader.h"

#include "../typelib/typelib_fixture.h"

namespace quillet::typelib {
namespace {

using namespace testing;

class MsftReaderTest : public ::testing::Test {
protected:
    MsftReader reader{{stdoleDir()}};
    TypeLibraryPtr shapes = reader.Open(fixturePath("qltshapes.tlb"));
    std::vector<MemberInfo> shapeMembers() { return typeNamed(*shapes, u"IShape")->Members(); }
};

TEST_F(MsftReaderTest, LibraryAttributes) {
    EXPECT_EQ(shapes->Name(), u"QltShapes");
    EXPECT_EQ(shapes->Guid(), u"{5E1A0001-0000-4000-8000-000000000001}");
    EXPECT_EQ(shapes->MajorVersion(), 1);
    EXPECT_EQ(shapes->MinorVersion(), 2);
    EXPECT_EQ(shapes->HelpString(), u"Quillet test shapes");
    EXPECT_EQ(shapes->HelpFile(), u"shapes.chm");
    EXPECT_EQ(shapes->HelpContext(), 7);
    EXPECT_EQ(shapes->TypeInfoCount(), 13);
}

TEST_F(MsftReaderTest, EnumConstantsWithTheirValues) {
    TypeInfoPtr color = typeNamed(*shapes, u"ShapeColor");
    ASSERT_TRUE(color);
    EXPECT_EQ(color->TypeKind(), TKIND_ENUM);
    EXPECT_EQ(color->HelpString(), u"Colours of a shape");
    std::vector<MemberInfo> members = color->Members();
    ASSERT_EQ(members.size(), 4u);
    EXPECT_EQ(members[3].Name, u"scBlue");
    EXPECT_TRUE(members[3].IsConstant);
    EXPECT_EQ(basic::CLng(members[3].Value), -4);
    EXPECT_EQ(basic::CLng(members[1].Value), 1);
}

TEST_F(MsftReaderTest, RecordFieldsAndAliasChain) {
    std::vector<MemberInfo> fields = typeNamed(*shapes, u"ShapePoint")->Members();
    ASSERT_EQ(fields.size(), 2u);
    EXPECT_EQ(fields[1].Name, u"Y");
    EXPECT_EQ(fields[1].ReturnType.VarType, VT_I4);
    VarTypeInfo second = typeNamed(*shapes, u"ColorAlias2")->AliasTarget();
    ASSERT_TRUE(second.TypeInfo);
    EXPECT_EQ(second.TypeInfo->Name(), u"ColorAlias");
    VarTypeInfo first = second.TypeInfo->AliasTarget();
    ASSERT_TRUE(first.TypeInfo);
    EXPECT_EQ(first.TypeInfo->Name(), u"ShapeColor");
    EXPECT_EQ(first.TypeInfo->TypeKind(), TKIND_ENUM);
    EXPECT_EQ(typeNamed(*shapes, u"Handle")->AliasTarget().VarType, VT_I4);
    EXPECT_THROW(typeNamed(*shapes, u"ShapePoint")->AliasTarget(), TypeLibError);
}

TEST_F(MsftReaderTest, SearchItemsHideHiddenTypesAndNameTheApplicationObject) {
    shapes->AppObjString(u"QltShapes_Unqualified");
    std::vector<SearchItem> items = shapes->SearchItems();
    auto find = [&](const Str& name) -> const SearchItem* {
        for (const SearchItem& item : items)
            if (item.Name == name) return &item;
        return nullptr;
    };
    EXPECT_EQ(find(u"HiddenThing"), nullptr);
    ASSERT_TRUE(find(u"ShapeColor"));
    EXPECT_EQ(find(u"ShapeColor")->Kind, kSearchConstants);
    EXPECT_EQ(find(u"ShapeFunctions")->Kind, kSearchDeclarations);
    EXPECT_EQ(find(u"ShapePoint")->Kind, kSearchRecord);
    EXPECT_EQ(find(u"Handle")->Kind, kSearchAlias);
    EXPECT_EQ(find(u"Circle")->Kind, kSearchClass);
    const SearchItem* app = find(u"QltShapes_Unqualified");
    ASSERT_TRUE(app);
    EXPECT_EQ(app->Kind, kSearchAppObject);
    EXPECT_EQ(shapes->TypeInfoAt(app->TypeInfoNumber)->Name(), u"ShapesApp");
}

TEST_F(MsftReaderTest, PropertyHelpAndRetvalAsReturnType) {
    std::vector<MemberInfo> members = shapeMembers();
    const MemberInfo* get = memberNamed(members, u"Name", 2);
    ASSERT_TRUE(get);
    EXPECT_EQ(get->HelpString, u"The shape's name");
    EXPECT_EQ(get->HelpContext, 101);
    EXPECT_EQ(get->ReturnType.VarType, VT_BSTR);
    EXPECT_EQ(get->ReturnType.PointerLevel, 0);
    EXPECT_TRUE(get->Parameters.empty());
    const MemberInfo* let = memberNamed(members, u"Name", 4);
    ASSERT_TRUE(let);
    EXPECT_EQ(let->Parameters.size(), 1u);
    EXPECT_EQ(memberNamed(members, u"Area")->ReturnType.VarType, VT_R8);
}

TEST_F(MsftReaderTest, OptionalParametersAndDefaultValues) {
    std::vector<MemberInfo> members = shapeMembers();
    const MemberInfo* move = memberNamed(members, u"Move");
    ASSERT_TRUE(move);
    ASSERT_EQ(move->Parameters.size(), 2u);
    EXPECT_FALSE(move->Parameters[0].Optional());
    EXPECT_TRUE(move->Parameters[1].Optional());
    EXPECT_TRUE(move->Parameters[1].Default());
    EXPECT_EQ(basic::CLng(move->Parameters[1].DefaultValue), 0);
    const MemberInfo* label = memberNamed(members, u"Label");
    ASSERT_TRUE(label);
    EXPECT_EQ(std::get<Str>(label->Parameters[0].DefaultValue), u"none");
    EXPECT_EQ(std::get<bool>(label->Parameters[1].DefaultValue), true);
    EXPECT_EQ(basic::CLng(label->Parameters[2].DefaultValue), 2);
    const MemberInfo* paint = memberNamed(members, u"Paint");
    EXPECT_EQ(basic::CLng(paint->Parameters[0].DefaultValue), 1);
    EXPECT_TRUE(paint->Parameters[1].Optional());
    EXPECT_FALSE(paint->Parameters[1].Default());
}

TEST_F(MsftReaderTest, TypeDescriptionChains) {
    std::vector<MemberInfo> members = shapeMembers();
    const MemberInfo* points = memberNamed(members, u"Points");
    ASSERT_TRUE(points);
    const VarTypeInfo& array = points->Parameters[0].Type;
    EXPECT_EQ(array.VarType, VT_ARRAY);
    EXPECT_EQ(array.PointerLevel, 1);
    ASSERT_TRUE(array.TypeInfo);
    EXPECT_EQ(array.TypeInfo->Name(), u"ShapePoint");
    EXPECT_EQ(memberNamed(members, u"Names")->ReturnType.VarType, VT_ARRAY | VT_BSTR);
    EXPECT_EQ(TypeNameOf(memberNamed(members, u"Names")->ReturnType), u"String()");
    const MemberInfo* clone = memberNamed(members, u"Clone");
    EXPECT_EQ(clone->ReturnType.PointerLevel, 1);
    EXPECT_EQ(clone->ReturnType.TypeInfo->Name(), u"IShape");
    const MemberInfo* attach = memberNamed(members, u"Attach");
    EXPECT_EQ(attach->Parameters[1].Type.VarType, VT_DISPATCH);
    EXPECT_EQ(attach->Parameters[2].Type.VarType, VT_UNKNOWN);
    EXPECT_EQ(memberNamed(members, u"Where")->Parameters[0].Flags & (PARAMFLAG_FIN | PARAMFLAG_FOUT), 3);
}

TEST_F(MsftReaderTest, VarargLcidAndInheritance) {
    std::vector<MemberInfo> app = typeNamed(*shapes, u"ShapesApp")->Members();
    EXPECT_EQ(memberNamed(app, u"Sum")->OptionalCount, -1);
    const MemberInfo* lcid = memberNamed(app, u"WithLcid");
    ASSERT_EQ(lcid->Parameters.size(), 1u);
    EXPECT_EQ(lcid->ReturnType.VarType, VT_I4);
    EXPECT_EQ(memberNamed(app, u"Beep")->ReturnType.VarType, VT_HRESULT);
    std::vector<MemberInfo> circle = typeNamed(*shapes, u"ICircle")->Members();
    EXPECT_TRUE(memberNamed(circle, u"Move"));
    EXPECT_TRUE(memberNamed(circle, u"Radius", 2));
    EXPECT_FALSE(memberNamed(circle, u"QueryInterface"));
    EXPECT_FALSE(memberNamed(circle, u"Invoke"));
    // A coclass gives its default interface's members, not its event source's.
    std::vector<MemberInfo> coclass = typeNamed(*shapes, u"Circle")->Members();
    EXPECT_TRUE(memberNamed(coclass, u"Radius", 2));
    EXPECT_FALSE(memberNamed(coclass, u"Changed"));
}

TEST_F(MsftReaderTest, ModuleFunctionsAndDispinterfaceProperties) {
    std::vector<MemberInfo> module = typeNamed(*shapes, u"ShapeFunctions")->Members();
    const MemberInfo* fill = memberNamed(module, u"Fill");
    ASSERT_TRUE(fill);
    EXPECT_EQ(fill->Parameters[0].Type.PointerLevel, 1);
    EXPECT_EQ(memberNamed(module, u"Reset")->ReturnType.VarType, VT_VOID);
    EXPECT_EQ(memberNamed(module, u"Distance")->HelpString, u"Distance of two points");
    std::vector<MemberInfo> events = typeNamed(*shapes, u"DShapeEvents")->Members();
    EXPECT_EQ(memberNamed(events, u"Changed")->ReturnType.VarType, VT_VOID);
    EXPECT_EQ(events.back().InvokeKind, 0);
    EXPECT_FALSE(events.back().IsConstant);
}

TEST_F(MsftReaderTest, ImportedTypesResolvedThroughTheSearchList) {
    std::vector<MemberInfo> shape = shapeMembers();
    const MemberInfo* font = memberNamed(shape, u"Font");
    ASSERT_TRUE(font && font->ReturnType.TypeInfo);
    EXPECT_EQ(font->ReturnType.TypeInfo->Name(), u"IFontDisp");
    EXPECT_EQ(font->ReturnType.TypeInfo->LibraryName(), u"stdole");
    // Without a search list the type stays unresolved, with the reason.
    MsftReader bare;
    TypeLibraryPtr alone = bare.Open(fixturePath("qltshapes.tlb"));
    std::vector<MemberInfo> members = typeNamed(*alone, u"IShape")->Members();
    const MemberInfo* lost = memberNamed(members, u"Font");
    EXPECT_FALSE(lost->ReturnType.TypeInfo);
    EXPECT_NE(lost->ReturnType.ResolveError.find("stdole2.tlb"), std::string::npos);
}

TEST(MsftReaderImports, ByFileNameAndByGuidWhenRenamed) {
    MsftReader byName({QUILLET_TYPELIB_DIR, stdoleDir()});
    TypeLibraryPtr use = byName.Open(fixturePath("qltuse.tlb"));
    std::vector<MemberInfo> members = typeNamed(*use, u"IUser")->Members();
    const MemberInfo* draw = memberNamed(members, u"Draw");
    ASSERT_TRUE(draw->Parameters[0].Type.TypeInfo);
    EXPECT_EQ(draw->Parameters[0].Type.TypeInfo->LibraryName(), u"QltShapes");
    EXPECT_EQ(basic::CLng(draw->Parameters[1].DefaultValue), -4);

    ScratchFolder folder("quillet-typelib");
    std::filesystem::copy_file(fixturePath("qltshapes.tlb"), folder.path / "renamed.olb");
    MsftReader byGuid({folder.path.string()});
    TypeLibraryPtr use2 = byGuid.Open(fixturePath("qltuse.tlb"));
    std::vector<MemberInfo> members2 = typeNamed(*use2, u"IUser")->Members();
    const MemberInfo* outline = memberNamed(members2, u"Outline");
    ASSERT_TRUE(outline->ReturnType.TypeInfo);
    EXPECT_EQ(outline->ReturnType.TypeInfo->Name(), u"ICircle");
}

TEST(MsftReaderPe, TypeLibraryResourcesOf64And32BitFiles) {
    for (const char* name : {"shapes_x86_64.dll", "shapes_i686.dll"}) {
        std::string path = fixturePath(name);
        if (!std::filesystem::exists(path)) GTEST_SKIP() << "no mingw tools to build " << name;
        MsftReader reader;
        EXPECT_EQ(reader.Open(path)->Name(), u"QltShapes") << name;
        EXPECT_EQ(reader.Open(path + "\\1")->Name(), u"QltShapes") << name;
        EXPECT_EQ(reader.Open(path + "\\2")->Name(), u"QltUse") << name;
        try {
            reader.Open(path + "\\3");
            ADD_FAILURE() << "resource 3 opened";
        } catch (const TypeLibError& error) {
            EXPECT_STREQ(error.what(), "the PE file has no type library number 3");
        }
    }
}

TEST(MsftReaderErrors, MissingAndForeignFilesGiveClearErrors) {
    MsftReader reader;
    try {
        reader.Open("/no/such/file.tlb");
        ADD_FAILURE();
    } catch (const TypeLibError& error) {
        EXPECT_STREQ(error.what(), "no such library file: /no/such/file.tlb");
    }
    std::vector<std::uint8_t> text(100, 'x');
    EXPECT_THROW(OpenLibraryBytes(text), TypeLibError);
    std::vector<std::uint8_t> sltg = {'S', 'L', 'T', 'G', 0, 0, 0, 0};
    try {
        OpenLibraryBytes(sltg);
        ADD_FAILURE();
    } catch (const TypeLibError& error) {
        EXPECT_NE(std::string(error.what()).find("SLTG"), std::string::npos);
    }
}

}  // namespace
}  // namespace quillet::typelib
