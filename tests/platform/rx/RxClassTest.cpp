// The run-time class system: descriptors, the dictionary, protocol
// extensions found through the class tree, and the command stack.
#include "ZqTestSupport.h"

namespace {

class Protocol : public OdRxObject {
  ODRX_DECLARE_MEMBERS(Protocol);
};
ODRX_DEFINE_MEMBERS(Protocol, OdRxObject)

class Animal : public OdRxObject {
  ODRX_DECLARE_MEMBERS(Animal);
};
ODRX_DEFINE_MEMBERS(Animal, OdRxObject)

class Dog : public Animal {
  ODRX_DECLARE_MEMBERS(Dog);
};
ODRX_DEFINE_PSEUDO_CONSTRUCTOR(Dog)
ODRX_DEFINE_MEMBERS_EX(Dog, Animal, Dog_pseudoConstructor, OdString("DOG"), OdString())

class RxClassTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Protocol::rxInit();
    Animal::rxInit();
    Dog::rxInit();
  }
  void TearDown() override {
    Dog::rxUninit();
    Animal::rxUninit();
    Protocol::rxUninit();
  }
  OdStaticRxObject<Protocol> forAnimals, forDogs, other;
};

TEST_F(RxClassTest, DerivationAndKindOf) {
  OdRxObjectPtr dog = Dog::desc()->create();
  ASSERT_TRUE(dog);
  EXPECT_TRUE(dog->isKindOf(Animal::desc()));
  EXPECT_TRUE(dog->isKindOf(OdRxObject::desc()));
  EXPECT_FALSE(dog->isKindOf(Protocol::desc()));
  EXPECT_TRUE(Dog::desc()->isDerivedFrom(Dog::desc()));
  EXPECT_FALSE(Animal::desc()->isDerivedFrom(Dog::desc()));
  EXPECT_FALSE(Dog::desc()->isDerivedFrom(nullptr));
  EXPECT_EQ(Dog::desc()->dxfName(), OdString("DOG"));
  EXPECT_EQ(odrxClassDictionary().getAt("Dog"), Dog::desc());
  EXPECT_TRUE(Dog::cast(dog.get()));
  EXPECT_FALSE(Protocol::cast(dog.get()));
}

TEST_F(RxClassTest, AddXReturnsThePreviousAndDelXTheRemovedExtension) {
  EXPECT_TRUE(Animal::desc()->addX(Protocol::desc(), &forAnimals).isNull());
  EXPECT_EQ(Animal::desc()->addX(Protocol::desc(), &other).get(), &forAnimals);
  EXPECT_EQ(Animal::desc()->getX(Protocol::desc()).get(), &other);
  EXPECT_EQ(Animal::desc()->delX(Protocol::desc()).get(), &other);
  EXPECT_TRUE(Animal::desc()->delX(Protocol::desc()).isNull());
  EXPECT_TRUE(Animal::desc()->getX(Protocol::desc()).isNull());
}

TEST_F(RxClassTest, QueryXWalksUpTheParentChainAndStopsAtTheNearest) {
  OdRxObjectPtr dog = Dog::desc()->create();
  EXPECT_TRUE(dog->queryX(Protocol::desc()).isNull());
  Animal::desc()->addX(Protocol::desc(), &forAnimals);
  EXPECT_EQ(dog->queryX(Protocol::desc()).get(), &forAnimals);
  Dog::desc()->addX(Protocol::desc(), &forDogs);
  EXPECT_EQ(dog->queryX(Protocol::desc()).get(), &forDogs);
  // The lookup is by exact protocol class: another protocol finds nothing.
  EXPECT_TRUE(dog->queryX(Animal::desc()).get() == dog.get());
  Dog::desc()->delX(Protocol::desc());
  Animal::desc()->delX(Protocol::desc());
  EXPECT_THROW(dog->x(Protocol::desc()), OdError_NotThatKindOfClass);
}

TEST_F(RxClassTest, RegisteringTwiceAndRemovingUnregisteredRaise) {
  try {
    Dog::rxInit();
    FAIL();
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), eClassAlreadyRegistered);
    EXPECT_EQ(int(e.code()), 315);
  }
  EXPECT_THROW(newOdRxClass("Dog", nullptr), OdError);
  Dog::rxUninit();
  try {
    Dog::rxUninit();
    FAIL();
  } catch (const OdError& e) {
    EXPECT_EQ(int(e.code()), 255);
  }
  Dog::rxInit();
}

TEST_F(RxClassTest, ObserverSeesRegistrationsAndExtensions) {
  ZqRecordingObserver observer;
  Animal::desc()->addX(Protocol::desc(), &forAnimals);
  Animal::desc()->delX(Protocol::desc());
  Animal::desc()->delX(Protocol::desc());
  Dog::rxUninit();
  Dog::rxInit();
  EXPECT_EQ(observer.events, (std::vector<std::string>{"addX Animal Protocol", "delX Animal Protocol",
                                                       "delX Animal Protocol", "class- Dog", "class+ Dog"}));
}

TEST_F(RxClassTest, ADerivedClassOutlivesItsRemovedParent) {
  OdRxObjectPtr dog = Dog::desc()->create();
  Animal::rxUninit();
  // The dog's class still knows its parent although the parent left the dictionary.
  EXPECT_EQ(Dog::desc()->myParent()->name(), OdString("Animal"));
  EXPECT_TRUE(dog->isKindOf(OdRxObject::desc()));
  Dog::rxUninit();
  Animal::rxInit();
  Dog::rxInit();
}

class TestCommand : public OdEdCommand {
 public:
  TestCommand(const char* group, const char* global, const char* local) : m_group(group), m_global(global), m_local(local) {}
  const OdString groupName() const override { return m_group; }
  const OdString globalName() const override { return m_global; }
  const OdString localName() const override { return m_local; }
  void execute(OdEdCommandContext*) override {}

 private:
  OdString m_group, m_global, m_local;
};

TEST(CommandStackTest, LookupByGlobalAndLocalNameAndRemoval) {
  OdStaticRxObject<TestCommand> a("G", "_-THING", "-DING"), b("G", "_-THING", "-OTHER"), c("H", "_-THING", "-X");
  OdEdCommandStack* stack = odedRegCmds();
  ZqRecordingObserver observer;
  stack->addCommand(&a);
  EXPECT_THROW(stack->addCommand(&b), OdError);  // same global name in the same group
  stack->addCommand(&c);                         // another group may reuse it
  EXPECT_EQ(stack->lookupGlobalCmd("_-thing"), &a);
  EXPECT_EQ(stack->lookupLocalCmd("-ding"), &a);
  EXPECT_EQ(stack->lookupCmd("-DING"), &a);
  EXPECT_EQ(stack->lookupCmd("-X"), &c);
  EXPECT_EQ(stack->lookupCmd("_-THING"), &a);
  EXPECT_TRUE(stack->removeCmd(&a));
  EXPECT_FALSE(stack->removeCmd(&a));
  EXPECT_EQ(stack->lookupLocalCmd("-DING"), nullptr);
  EXPECT_TRUE(stack->removeCmd(&c));
  EXPECT_EQ(observer.events, (std::vector<std::string>{"cmd+ _-THING", "cmd+ _-THING", "cmd- _-THING", "cmd- _-THING"}));
}

}  // namespace
