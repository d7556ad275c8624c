#include "module/manifest.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

const ClassRow threeClasses[] = {
    {L"qzOne", L"{1}", L"IqzOne", L"{I1}", L"Qz.One", L"Qz.One.%QZ_PROGID_VERSTR%", L"qz.One", L"Apartment",
     true, true},
    {L"qzTwo", L"{2}", L"IqzTwo", L"{I2}", L"Qz.Two", nullptr, L"Qz.Two", L"both", false, true},
    {L"qzThree", L"{3}", L"IqzThree", L"{I3}", L"Qz.Three", nullptr, L"Qz.Three", L"Both", false, false},
};

TEST(Manifest, ListsTheServedClasses) {
    EXPECT_EQ(WriteManifest(threeClasses), R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <assemblyIdentity type="win32" name="qzVandraExt.X" version="6.5.0.0" processorArchitecture="amd64"/>
  <file name="qzVandraExt.dll">
    <typelib tlbid="{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}" version="6.5" helpdir="" resourceid="1" flags="HASDISKIMAGE"/>
    <comClass clsid="{1}" description="qzOne Class" threadingModel="Apartment" tlbid="{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}" progid="Qz.One.1" miscStatusContent="recomposeonresize,cantlinkinside,insideout,activatewhenvisible,setclientsitefirst">
      <progid>Qz.One</progid>
    </comClass>
    <comClass clsid="{2}" description="qzTwo Class" threadingModel="Both" tlbid="{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}" progid="Qz.Two"/>
  </file>
  <comInterfaceExternalProxyStub name="IqzOne" iid="{I1}" proxyStubClsid32="{00020424-0000-0000-C000-000000000046}" tlbid="{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}"/>
  <comInterfaceExternalProxyStub name="IqzTwo" iid="{I2}" proxyStubClsid32="{00020424-0000-0000-C000-000000000046}" tlbid="{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}"/>
</assembly>
)");
}

}  // namespace
}  // namespace qz
