// A stand-in for Excel: an automation server of the same class and the same members, with a workbook of its own making
// behind every file name. Started by the system when a program asks for the class; its command line says what goes
// wrong:
//
//   --log FILE       every member that is called, a line each
//   --fail MEMBER    that member fails with the words "MEMBER is stuk"
//   --die MEMBER     the whole server is gone at the first call of that member
//   --slow MS        every member takes that long
//   --busy COUNT     the first COUNT calls are refused as Excel does while its user edits a cell
//
// The first of its two sheets has three rows and two columns.
#include <array>
#include <atomic>
#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <oleauto.h>

// The interfaces of the system have no virtual destructor; their objects count references.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace {

constexpr CLSID excel_class = {0x00024500, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

struct Behaviour {
    std::wstring log;
    std::wstring fail;
    std::wstring die;
    DWORD slow = 0;
    int busy = 0;
};
Behaviour behaviour;

std::atomic<long> living_objects = 0;
HANDLE everything_let_go = nullptr;

using Texts = std::vector<std::vector<std::wstring>>;
const std::array<Texts, 2> workbook_texts = {Texts{{L"nr", L"naam"}, {L"1", L"Zoë €"}, {L"2", L"Łukasz"}},
                                             Texts{{L"tweede"}}};
constexpr std::array<double, 2> widths = {48.0, 96.0};

const std::map<std::wstring, DISPID> members = {{L"Workbooks", 1}, {L"Open", 2},
                                                {L"Sheets", 3},    {L"Count", 4},
                                                {L"UsedRange", 5}, {L"Rows", 6},
                                                {L"Columns", 7},   {L"Cells", 8},
                                                {L"Width", 9},     {L"Value", 10},
                                                {L"Text", 11},     {L"Close", 12},
                                                {L"Quit", 13},     {L"_NewEnum", DISPID_NEWENUM}};

std::wstring name_of(DISPID member) {
    for (const auto& [name, id] : members)
        if (id == member) return name;
    return L"?";
}

void note(std::wstring_view member) {
    if (behaviour.log.empty()) return;
    const HANDLE file = CreateFileW(behaviour.log.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    std::string line;
    for (const wchar_t letter : member)
        line.push_back(static_cast<char>(letter));
    line += '\n';
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    CloseHandle(file);
}

// What every call goes through before it does anything.
HRESULT met_by(std::wstring_view member, EXCEPINFO* info) {
    if (behaviour.busy > 0) {
        --behaviour.busy;
        return RPC_E_SERVERCALL_RETRYLATER;
    }
    note(member);
    Sleep(behaviour.slow);
    if (member == behaviour.die) TerminateProcess(GetCurrentProcess(), 1);
    if (member != behaviour.fail) return S_OK;
    if (info == nullptr) return E_FAIL;
    *info = {};
    info->bstrDescription = SysAllocString((std::wstring(member) + L" is stuk").c_str());
    info->scode = E_FAIL;
    return DISP_E_EXCEPTION;
}

// What the objects of the server share: counting, and asking for their interfaces.
template <class Interface>
class Counted : public Interface {
  public:
    Counted() { ++living_objects; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG STDMETHODCALLTYPE Release() override {
        const long left = --references_;
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        *object = nullptr;
        if (wanted != IID_IUnknown && wanted != __uuidof(Interface)) return E_NOINTERFACE;
        *object = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }

  protected:
    virtual ~Counted() {
        if (--living_objects == 0) SetEvent(everything_let_go);
    }

  private:
    std::atomic<long> references_ = 1;
};

enum class Kind { application, workbooks, workbook, sheets, sheet, used_range, rows, columns, cell };

class Node final : public Counted<IDispatch> {
  public:
    explicit Node(Kind kind, std::size_t sheet = 0, int row = 0, int column = 0)
        : kind_(kind), sheet_(sheet), row_(row), column_(column) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) override {
        if (count != 1) return E_NOTIMPL;
        const auto found = members.find(names[0]);
        if (found == members.end()) return DISP_E_UNKNOWNNAME;
        *ids = found->second;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result,
                                     EXCEPINFO* info, UINT*) override {
        const std::wstring name = name_of(member);
        // The number of rows and of columns fail apart from the number of sheets.
        const std::wstring met = name != L"Count"         ? name
                                 : kind_ == Kind::rows    ? L"Rows.Count"
                                 : kind_ == Kind::columns ? L"Columns.Count"
                                                          : name;
        if (const HRESULT error = met_by(met, info); FAILED(error)) return error;
        VARIANT ignored;
        return answer(name, *parameters, result == nullptr ? ignored : *result);
    }

  private:
    static HRESULT give(VARIANT& result, IUnknown* object, VARTYPE type) {
        result.vt = type;
        result.punkVal = object;
        return S_OK;
    }
    static HRESULT give(VARIANT& result, Node* node) {
        result.vt = VT_DISPATCH;
        result.pdispVal = node;
        return S_OK;
    }
    static HRESULT give(VARIANT& result, long number) {
        result.vt = VT_I4;
        result.lVal = number;
        return S_OK;
    }
    static HRESULT give(VARIANT& result, std::wstring_view text) {
        result.vt = VT_BSTR;
        result.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
        return S_OK;
    }

    const Texts& texts() const { return workbook_texts[sheet_]; }
    std::wstring text() const {
        const auto row = static_cast<std::size_t>(row_ - 1);
        const auto column = static_cast<std::size_t>(column_ - 1);
        return row < texts().size() && column < texts()[row].size() ? texts()[row][column] : std::wstring();
    }

    HRESULT answer(const std::wstring& name, const DISPPARAMS& parameters, VARIANT& result);

    Kind kind_;
    std::size_t sheet_;
    int row_;
    int column_;
};

class Enumeration final : public Counted<IEnumVARIANT> {
  public:
    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* found, ULONG* count) override {
        if (const HRESULT error = met_by(L"Next", nullptr); FAILED(error)) return error;
        ULONG given = 0;
        for (; given < wanted && next_ < workbook_texts.size(); ++given) {
            found[given].vt = VT_DISPATCH;
            found[given].pdispVal = new Node(Kind::sheet, next_++);
        }
        if (count != nullptr) *count = given;
        return given == wanted ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        next_ += count;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        next_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT**) override { return E_NOTIMPL; }

  private:
    std::size_t next_ = 0;
};

HRESULT Node::answer(const std::wstring& name, const DISPPARAMS& parameters, VARIANT& result) {
    VariantInit(&result);
    if (kind_ == Kind::application && name == L"Workbooks") return give(result, new Node(Kind::workbooks));
    if (kind_ == Kind::workbooks && name == L"Open") {
        if (parameters.cArgs != 1 || parameters.rgvarg[0].vt != VT_BSTR) return DISP_E_BADPARAMCOUNT;
        note(std::wstring(L"= ") + parameters.rgvarg[0].bstrVal);
        return give(result, new Node(Kind::workbook));
    }
    if (kind_ == Kind::workbook && name == L"Sheets") return give(result, new Node(Kind::sheets));
    if (kind_ == Kind::workbook && name == L"Close") return S_OK;
    if (kind_ == Kind::sheets && name == L"Count") return give(result, static_cast<long>(workbook_texts.size()));
    if (kind_ == Kind::sheets && name == L"_NewEnum") return give(result, new Enumeration, VT_UNKNOWN);
    if (kind_ == Kind::sheet && name == L"UsedRange") return give(result, new Node(Kind::used_range, sheet_));
    if (kind_ == Kind::sheet && name == L"Cells") {
        // The arguments stand in reverse.
        if (parameters.cArgs != 2 || parameters.rgvarg[0].vt != VT_I4) return DISP_E_BADPARAMCOUNT;
        return give(result, new Node(Kind::cell, sheet_, parameters.rgvarg[1].lVal, parameters.rgvarg[0].lVal));
    }
    if (kind_ == Kind::used_range && name == L"Rows") return give(result, new Node(Kind::rows, sheet_));
    if (kind_ == Kind::used_range && name == L"Columns") return give(result, new Node(Kind::columns, sheet_));
    if (kind_ == Kind::rows && name == L"Count") return give(result, static_cast<long>(texts().size()));
    if (kind_ == Kind::columns && name == L"Count") return give(result, static_cast<long>(texts().front().size()));
    if (kind_ == Kind::cell && name == L"Width") {
        result.vt = VT_R8;
        result.dblVal = widths[static_cast<std::size_t>(column_ - 1) % widths.size()];
        return S_OK;
    }
    if (kind_ == Kind::cell && (name == L"Text" || name == L"Value")) return give(result, text());
    return DISP_E_MEMBERNOTFOUND;
}

class Factory final : public Counted<IClassFactory> {
  public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** object) override {
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        auto* application = new Node(Kind::application);
        const HRESULT error = application->QueryInterface(wanted, object);
        application->Release();
        --living_objects; // the factory does not keep the server alive
        return error;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

void read_command_line() {
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; i + 1 < count; ++i) {
        const std::wstring_view name = arguments[i];
        const wchar_t* value = arguments[i + 1];
        if (name == L"--log") behaviour.log = value;
        if (name == L"--fail") behaviour.fail = value;
        if (name == L"--die") behaviour.die = value;
        if (name == L"--slow") behaviour.slow = std::wcstoul(value, nullptr, 10);
        if (name == L"--busy") behaviour.busy = static_cast<int>(std::wcstol(value, nullptr, 10));
    }
    LocalFree(arguments);
}

} // namespace

int main() {
    read_command_line();
    everything_let_go = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    note(L"started");
    DWORD registration = 0;
    auto* factory = new Factory;
    // One server for one program: the next that asks starts another.
    const HRESULT error =
        CoRegisterClassObject(excel_class, factory, CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE, &registration);
    constexpr DWORD longest_life = 120'000; // milliseconds; no test is forgotten for ever
    if (SUCCEEDED(error)) WaitForSingleObject(everything_let_go, longest_life);
    note(L"ended");
    return FAILED(error) ? 1 : 0;
}
