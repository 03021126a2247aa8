#include "platform/excel.h"

#include "platform/windows/com.h"
#include "platform/windows/wide_text.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include <windows.h>

#include <oleauto.h>

namespace tavelo {

namespace {

// {00024500-0000-0000-C000-000000000046}
constexpr CLSID excel_class = {0x00024500, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

// English, whatever the system's language is: an Excel without the user's language refuses every call in it. What a
// cell displays does not depend on it.
constexpr LCID call_language = 0x0409;

// The thread that makes all calls. The interface's own thread would go on handling events while it waits for an answer,
// and a rule may not begin while another runs; this way it waits and does nothing else.
class Caller {
  public:
    Caller() = default;
    ~Caller() {
        run([this] { ended_ = true; });
        thread_.join();
    }
    Caller(const Caller&) = delete;
    Caller& operator=(const Caller&) = delete;

    // Returns when `work` is done.
    void run(const std::function<void()>& work) {
        std::unique_lock lock(mutex_);
        work_ = &work;
        changed_.notify_all();
        changed_.wait(lock, [this] { return work_ == nullptr; });
    }

  private:
    void serve() {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        {
            std::unique_lock lock(mutex_);
            while (!ended_) {
                changed_.wait(lock, [this] { return work_ != nullptr; });
                (*work_)();
                work_ = nullptr;
                changed_.notify_all();
            }
        }
        CoUninitialize();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    const std::function<void()>* work_ = nullptr;
    bool ended_ = false;
    std::thread thread_{[this] { serve(); }};
};

class Variant {
  public:
    Variant() { VariantInit(&value_); }
    explicit Variant(int number) : Variant() {
        value_.vt = VT_I4;
        value_.lVal = number;
    }
    explicit Variant(std::wstring_view text) : Variant() {
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    }
    ~Variant() { VariantClear(&value_); }
    Variant(Variant&& other) noexcept : value_(std::exchange(other.value_, {})) {}
    Variant& operator=(Variant&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }

    VARIANT* address() { return &value_; }
    VARIANT bare() const { return value_; } // still owned here

    Com<IDispatch> object() {
        if (value_.vt != VT_DISPATCH || value_.pdispVal == nullptr) return nullptr;
        value_.pdispVal->AddRef();
        return Com<IDispatch>(value_.pdispVal);
    }
    bool become(VARTYPE type) { return SUCCEEDED(VariantChangeTypeEx(&value_, &value_, call_language, 0, type)); }

  private:
    VARIANT value_;
};

std::string error_text(HRESULT error) {
    wchar_t* text = nullptr;
    const DWORD size =
        FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                       nullptr, static_cast<DWORD>(error), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring_view line(text, size);
    while (!line.empty() && line.back() <= L' ')
        line.remove_suffix(1);
    std::string result = narrow(line);
    LocalFree(text);
    return result.empty() ? "Automatiseringsfout " + std::to_string(static_cast<unsigned long>(error)) : result;
}

std::unexpected<std::string> failed(HRESULT error) { return std::unexpected(error_text(error)); }

// The server's own words, when it has any.
std::unexpected<std::string> failed(HRESULT error, EXCEPINFO& info) {
    if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
    std::string words = info.bstrDescription == nullptr
                            ? std::string()
                            : narrow({info.bstrDescription, SysStringLen(info.bstrDescription)});
    for (BSTR text : {info.bstrSource, info.bstrDescription, info.bstrHelpFile})
        SysFreeString(text);
    return std::unexpected(words.empty() ? error_text(error) : std::move(words));
}

// Excel does not listen while its user edits a cell or has a dialog open.
bool is_busy(HRESULT error) {
    constexpr auto excel_edits_a_cell = static_cast<HRESULT>(0x800AC472);
    return error == RPC_E_CALL_REJECTED || error == RPC_E_SERVERCALL_RETRYLATER || error == excel_edits_a_cell;
}

template <class Call>
HRESULT patiently(Call call) {
    constexpr int tries = 100;
    constexpr DWORD pause = 100; // milliseconds
    HRESULT result = call();
    for (int i = 1; i < tries && is_busy(result); ++i) {
        Sleep(pause);
        result = call();
    }
    return result;
}

Automation<Variant> invoke(IDispatch& object, DISPID member, WORD how, std::vector<VARIANT> arguments) {
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    Variant result;
    EXCEPINFO info{};
    const HRESULT error = patiently([&] {
        return object.Invoke(member, IID_NULL, call_language, how, &parameters, result.address(), &info, nullptr);
    });
    if (FAILED(error)) return failed(error, info);
    return result;
}

// Late bound: the member is found by its name. `arguments` stand in reverse, as Invoke wants them.
Automation<Variant> call(IDispatch& object, const wchar_t* name, WORD how, std::vector<VARIANT> arguments = {}) {
    DISPID member = 0;
    std::wstring own_name(name);
    wchar_t* names = own_name.data();
    const HRESULT error = patiently([&] { return object.GetIDsOfNames(IID_NULL, &names, 1, call_language, &member); });
    if (FAILED(error)) return failed(error);
    return invoke(object, member, how, std::move(arguments));
}

Automation<Com<IDispatch>> as_object(Automation<Variant> answer) {
    if (!answer) return std::unexpected(answer.error());
    Com<IDispatch> object = answer->object();
    if (!object) return failed(DISP_E_TYPEMISMATCH);
    return object;
}

Automation<Com<IDispatch>> property_object(IDispatch& object, const wchar_t* name) {
    return as_object(call(object, name, DISPATCH_PROPERTYGET));
}

Automation<int> as_whole_number(Automation<Variant> answer) {
    if (!answer) return std::unexpected(answer.error());
    if (!answer->become(VT_I4)) return failed(DISP_E_TYPEMISMATCH);
    return answer->bare().lVal;
}

Automation<double> as_number(Automation<Variant> answer) {
    if (!answer) return std::unexpected(answer.error());
    if (!answer->become(VT_R8)) return failed(DISP_E_TYPEMISMATCH);
    return answer->bare().dblVal;
}

Automation<std::string> as_text(Automation<Variant> answer) {
    if (!answer) return std::unexpected(answer.error());
    if (!answer->become(VT_BSTR)) return failed(DISP_E_TYPEMISMATCH);
    const BSTR text = answer->bare().bstrVal;
    return narrow({text, SysStringLen(text)});
}

// An object of Excel's. It is called and let go by the thread of the calls alone.
class Remote {
  public:
    Remote(std::shared_ptr<Caller> caller, Com<IDispatch> object)
        : caller_(std::move(caller)), object_(std::move(object)) {}
    ~Remote() {
        caller_->run([this] { object_.reset(); });
    }
    Remote(const Remote&) = delete;
    Remote& operator=(const Remote&) = delete;

  protected:
    template <class T>
    Automation<T> ask(const std::function<Automation<T>(IDispatch&)>& question) const {
        Automation<T> answer = std::unexpected(std::string());
        caller_->run([&] { answer = question(*object_); });
        return answer;
    }
    // `Part` is what wraps the object that `question` gives; `Seam` is how the program knows it.
    template <class Part, class Seam>
    Automation<std::unique_ptr<Seam>>
    part(const std::function<Automation<Com<IDispatch>>(IDispatch&)>& question) const {
        auto object = ask<Com<IDispatch>>(question);
        if (!object) return std::unexpected(std::move(object.error()));
        return std::make_unique<Part>(caller_, std::move(*object));
    }

    std::shared_ptr<Caller> caller_;
    Com<IDispatch> object_;
};

class Range final : Remote, public ExcelRange {
  public:
    using Remote::Remote;
    Automation<double> Width() override {
        return ask<double>([](IDispatch& o) { return as_number(call(o, L"Width", DISPATCH_PROPERTYGET)); });
    }
    Automation<std::string> Value() override {
        return ask<std::string>([](IDispatch& o) { return as_text(call(o, L"Value", DISPATCH_PROPERTYGET)); });
    }
    Automation<std::string> Text() override {
        return ask<std::string>([](IDispatch& o) { return as_text(call(o, L"Text", DISPATCH_PROPERTYGET)); });
    }
};

class UsedRange final : Remote, public ExcelUsedRange {
  public:
    using Remote::Remote;
    Automation<int> Rows_Count() override { return count_of(L"Rows"); }
    Automation<int> Columns_Count() override { return count_of(L"Columns"); }

  private:
    Automation<int> count_of(const wchar_t* name) const {
        return ask<int>([name](IDispatch& o) -> Automation<int> {
            const auto lines = property_object(o, name);
            if (!lines) return std::unexpected(lines.error());
            return as_whole_number(call(**lines, L"Count", DISPATCH_PROPERTYGET));
        });
    }
};

class Worksheet final : Remote, public ExcelWorksheet {
  public:
    using Remote::Remote;
    Automation<std::unique_ptr<ExcelUsedRange>> UsedRange() override {
        return part<tavelo::UsedRange, ExcelUsedRange>([](IDispatch& o) { return property_object(o, L"UsedRange"); });
    }
    Automation<std::unique_ptr<ExcelRange>> Cells(int row, int column) override {
        return part<Range, ExcelRange>([row, column](IDispatch& o) {
            return as_object(call(o, L"Cells", DISPATCH_PROPERTYGET, {Variant(column).bare(), Variant(row).bare()}));
        });
    }
};

class Sheets final : Remote, public ExcelSheets {
  public:
    using Remote::Remote;
    ~Sheets() override {
        caller_->run([this] { enumeration_.reset(); });
    }
    Automation<int> Count() override {
        return ask<int>([](IDispatch& o) { return as_whole_number(call(o, L"Count", DISPATCH_PROPERTYGET)); });
    }
    Automation<std::unique_ptr<ExcelWorksheet>> Next() override {
        auto sheet = ask<Com<IDispatch>>([this](IDispatch& o) { return next(o); });
        if (!sheet) return std::unexpected(std::move(sheet.error()));
        if (!*sheet) return nullptr;
        return std::make_unique<Worksheet>(caller_, std::move(*sheet));
    }

  private:
    HRESULT begin(IDispatch& sheets) {
        auto answer = invoke(sheets, DISPID_NEWENUM, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {});
        if (!answer) return E_FAIL;
        const VARIANT found = answer->bare();
        if ((found.vt != VT_UNKNOWN && found.vt != VT_DISPATCH) || found.punkVal == nullptr) return E_NOINTERFACE;
        IEnumVARIANT* enumeration = nullptr;
        const HRESULT error = found.punkVal->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&enumeration));
        enumeration_.reset(enumeration);
        return error;
    }
    // Null after the last.
    Automation<Com<IDispatch>> next(IDispatch& sheets) {
        if (!enumeration_) {
            if (const HRESULT error = begin(sheets); FAILED(error)) return failed(error);
        }
        Variant sheet;
        ULONG got = 0;
        const HRESULT error = patiently([&] { return enumeration_->Next(1, sheet.address(), &got); });
        if (FAILED(error)) return failed(error);
        if (got == 0) return Com<IDispatch>();
        return as_object(std::move(sheet));
    }

    Com<IEnumVARIANT> enumeration_;
};

class Workbook final : Remote, public ExcelWorkbook {
  public:
    using Remote::Remote;
    Automation<std::unique_ptr<ExcelSheets>> Sheets() override {
        return part<tavelo::Sheets, ExcelSheets>([](IDispatch& o) { return property_object(o, L"Sheets"); });
    }
    Automation<void> Close() override {
        const auto closed = ask<Variant>([](IDispatch& o) { return call(o, L"Close", DISPATCH_METHOD); });
        if (!closed) return std::unexpected(closed.error());
        return {};
    }
};

class Workbooks final : Remote, public ExcelWorkbooks {
  public:
    using Remote::Remote;
    Automation<std::unique_ptr<ExcelWorkbook>> Open(std::string_view file_name) override {
        const Variant name(wide(file_name));
        return part<Workbook, ExcelWorkbook>(
            [&name](IDispatch& o) { return as_object(call(o, L"Open", DISPATCH_METHOD, {name.bare()})); });
    }
};

class InstalledExcel final : public ExcelApplication {
  public:
    ~InstalledExcel() override {
        if (caller_) caller_->run([this] { application_.reset(); });
    }

    // The operator may have ended an Excel that was kept: then one more is made.
    Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override {
        if (!caller_) caller_ = std::make_shared<Caller>();
        Automation<Com<IDispatch>> workbooks = std::unexpected(std::string());
        caller_->run([&] {
            const bool kept = application_ != nullptr;
            workbooks = workbooks_of_application();
            if (!workbooks && kept) workbooks = workbooks_of_application();
        });
        if (!workbooks) return std::unexpected(std::move(workbooks.error()));
        return std::make_unique<tavelo::Workbooks>(caller_, std::move(*workbooks));
    }

  private:
    // Lets the application go when it does not answer.
    Automation<Com<IDispatch>> workbooks_of_application() {
        if (!application_) {
            IDispatch* application = nullptr;
            const HRESULT error = CoCreateInstance(excel_class, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                                                   reinterpret_cast<void**>(&application));
            if (FAILED(error)) return failed(error);
            application_.reset(application);
        }
        auto workbooks = property_object(*application_, L"Workbooks");
        if (!workbooks) application_.reset();
        return workbooks;
    }

    std::shared_ptr<Caller> caller_; // from the first use on
    Com<IDispatch> application_;
};

} // namespace

std::unique_ptr<ExcelApplication> installed_excel() { return std::make_unique<InstalledExcel>(); }

} // namespace tavelo
