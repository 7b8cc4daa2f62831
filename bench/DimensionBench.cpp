// Speed of dimensions: the palette rows and values of a selection of
// 10,000 dimensions (each with a few overrides of its style), and the
// overrides listing against the number of overrides a dimension has.
#include "DbDimension.h"
#include "DbSymbolTable.h"
#include "RxModule.h"
#include "ZQCommandsBase.h"
#include "ZqServices.h"
#include "KVKernel.h"

#include <benchmark/benchmark.h>

namespace {

namespace dv = OdDbDimVar;

struct Dimensions {
  explicit Dimensions(int count) {
    odDbInitialize();
    GetZqSystemServices()->SetEchoToStderr(false);
    odrxDynamicLinker()->loadModule("ZQProperties");
    db = OdDbDatabase::createObject();
    OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
    auto* space = static_cast<OdDbBlockTableRecord*>(ms.get());
    for (int i = 0; i < count; ++i) {
      OdDbRotatedDimensionPtr d = OdDbRotatedDimension::createObject();
      d->setDatabaseDefaults(db.get());
      d->setXLine1Point(OdGePoint3d(i, 0, 0));
      d->setXLine2Point(OdGePoint3d(i + 1 + i % 7, 0, 0));
      d->setDimtxt(0.25 + i % 3);
      d->setDimasz(0.2);
      ids.append(space->appendOdDbEntity(d.get()));
    }
  }
  OdDbDatabasePtr db;
  OdDbObjectIdArray ids;
};

// The palette for all 10,000 selected at once: the rows they share and
// whether each value varies.
void BM_DimensionSelectionRows(benchmark::State& state) {
  static Dimensions d(10000);
  for (auto _ : state) {
    CZqPropertiesWindowService service(d.db.get());
    service.SetSelection(d.ids);
    benchmark::DoNotOptimize(service.Rows().size());
  }
  state.counters["dimensions"] = double(d.ids.size());
}
BENCHMARK(BM_DimensionSelectionRows)->Unit(benchmark::kMillisecond);

// The overrides listing of one dimension with N overrides.
void BM_DimensionOverridesListing(benchmark::State& state) {
  static Dimensions d(1);
  const int n = int(state.range(0));
  {
    OdDbObjectPtr o = d.ids[0].openObject(OdDb::kForWrite);
    auto* dim = OdDbDimension::cast(o).get();
    OdDbDimStyleOverrides::remove(dim, dv::kCount);
    int made = 0;
    for (int k = 0; k < dv::kCount && made < n; ++k) {
      const dv::Id id = dv::Id(k);
      const dv::Info& i = dv::info(id);
      if (!i.code || (i.kind != dv::Kind::Real && i.kind != dv::Kind::Bool)) continue;
      if (i.kind == dv::Kind::Bool) dim->setDimVar(id, !std::get<bool>(i.defaultValue()));
      else if (i.limit != dv::Limit::Range) dim->setDimVar(id, std::get<double>(i.defaultValue()) + 1.5);
      else continue;
      ++made;
    }
    state.counters["overrides"] = made;
  }
  OdDbObjectPtr o = d.ids[0].openObject();
  CZqPrintObjectInfoPE* info = CZqPrintObjectInfoPE::cast(o->isA()->getX(CZqPrintObjectInfoPE::desc()).get()).get();
  for (auto _ : state) {
    CZqPrintInfoContext context(d.db.get());
    info->PrintObjectInfo(o.get(), &context);
    benchmark::DoNotOptimize(context.Lines().size());
  }
}
BENCHMARK(BM_DimensionOverridesListing)->Arg(1)->Arg(4)->Arg(16)->Arg(40)->Unit(benchmark::kMicrosecond);

}  // namespace
