// Objects know their class at run time: its name, its base classes, and how one of it is made.
#include "modules/ModuleFiles.h"

#include <afxwin.h>

#include <gtest/gtest.h>

namespace Zoo {

class Animal : public CObject {
    DECLARE_DYNAMIC(Animal)

public:
    int legs = 4;
};

class Dog : public Animal {
    DECLARE_DYNCREATE(Dog)

public:
    double weight = 12.5;
};

/// Says nothing of itself: it counts as its base class.
class Puppy : public Dog {};

class Cat : public Animal {
    DECLARE_DYNAMIC(Cat)
};

IMPLEMENT_DYNAMIC(Animal, CObject)
IMPLEMENT_DYNCREATE(Dog, Animal)
IMPLEMENT_DYNAMIC(Cat, Animal)

} // namespace Zoo

using Zoo::Animal;
using Zoo::Cat;
using Zoo::Dog;
using Zoo::Puppy;

TEST(RuntimeClass, TellsNameWithoutNamespaceAndSize) {
    const Dog dog;
    const CRuntimeClass* const record = dog.GetRuntimeClass();
    EXPECT_EQ(record, RUNTIME_CLASS(Dog));
    EXPECT_EQ(record, &Dog::classDog);
    EXPECT_EQ(record, Dog::GetThisClass());
    EXPECT_STREQ(record->m_lpszClassName, "Dog");
    EXPECT_EQ(record->m_nObjectSize, static_cast<int>(sizeof(Dog)));
    EXPECT_EQ(record->m_wSchema, 0xFFFFU);
    EXPECT_FALSE(dog.IsSerializable());
}

TEST(RuntimeClass, KnowsItsBaseClasses) {
    const CRuntimeClass* const dog = RUNTIME_CLASS(Dog);
    EXPECT_EQ(dog->m_pfnGetBaseClass(), RUNTIME_CLASS(Animal));
    EXPECT_EQ(RUNTIME_CLASS(Animal)->m_pfnGetBaseClass(), RUNTIME_CLASS(CObject));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(Dog)));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(Animal)));
    EXPECT_TRUE(dog->IsDerivedFrom(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog->IsDerivedFrom(RUNTIME_CLASS(Cat)));
    EXPECT_FALSE(RUNTIME_CLASS(Animal)->IsDerivedFrom(dog));
    EXPECT_FALSE(RUNTIME_CLASS(CObject)->IsDerivedFrom(dog));
}

TEST(RuntimeClass, ObjectIsOfItsClassAndOfThoseAboveIt) {
    const Dog dog;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(Dog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(Animal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(Cat)));
}

TEST(RuntimeClass, ClassThatDeclaresNothingCountsAsItsBase) {
    const Puppy puppy;
    EXPECT_EQ(puppy.GetRuntimeClass(), RUNTIME_CLASS(Dog));
    EXPECT_TRUE(puppy.IsKindOf(RUNTIME_CLASS(Dog)));
}

TEST(RuntimeClass, MakesObjectsWhereTheClassSaysHow) {
    CObject* const made = RUNTIME_CLASS(Dog)->CreateObject();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetRuntimeClass(), RUNTIME_CLASS(Dog));
    EXPECT_EQ(STATIC_DOWNCAST(Dog, made)->weight, 12.5);
    delete made;
    EXPECT_EQ(RUNTIME_CLASS(Cat)->CreateObject(), nullptr);
}

TEST(RuntimeClass, DowncastGivesTheObjectOrNull) {
    Dog dog;
    CObject* const object = &dog;
    EXPECT_EQ(DYNAMIC_DOWNCAST(Dog, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Animal, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Cat, object), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Dog, static_cast<CObject*>(nullptr)), nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(Dog, object), &dog);
    EXPECT_EQ(STATIC_DOWNCAST(Dog, static_cast<CObject*>(nullptr)), nullptr);
}

TEST(RuntimeClass, OfTheFrameworksClasses) {
    std::string line;
    for (const CRuntimeClass* c = RUNTIME_CLASS(CDialog); c;
         c = c->m_pfnGetBaseClass ? c->m_pfnGetBaseClass() : nullptr)
        line += std::string(c->m_lpszClassName) + " ";
    EXPECT_EQ(line, "CDialog CWnd CCmdTarget CObject ");
    EXPECT_TRUE(RUNTIME_CLASS(CWinApp)->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    EXPECT_TRUE(RUNTIME_CLASS(CEdit)->IsDerivedFrom(RUNTIME_CLASS(CWnd)));
}

TEST(RuntimeClass, IsOneForAllModules) {
    const LoadedModule titled(L"titled.dll");
    ASSERT_TRUE(titled.handle());
    CObject* const app = titled.Call<CWinApp*>("TitledApplication");
    EXPECT_EQ(app->GetRuntimeClass(), RUNTIME_CLASS(CWinApp));
    EXPECT_EQ(DYNAMIC_DOWNCAST(CWinThread, app), app);
}
