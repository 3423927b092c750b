// Inputs of an inverter, each with a label and a colour, and the records by which a host traces strings of
// panels.
#pragma once

#include <cstdint>

#include <quorvel/exportar.h>
#include <quorvel/framework/CArray.h>
#include <quorvel/framework/CObject.h>
#include <quorvel/framework/CString.h>
#include <quorvel/ui/lista.h>

/// One input of an inverter.
class EFV_API CSFVInverterInput : public CObject {
public:
    int iIndice = 0;       ///< position in the inverter's list, from 0
    CString csReferencia;  ///< label
    short nColor = 256;    ///< index of the host's palette, 256 that of the layer, 257 that of the block

    CSFVInverterInput() = default;
    CSFVInverterInput(int iPosicion, CString csRotulo, short nCodigoColor);
    CSFVInverterInput(const CSFVInverterInput&) = default;
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVInverterInput() override;

    /// Schema 1. The number read isn't looked at: there is one layout.
    void Serialize(CArchive& ar) override;

    // NOLINTNEXTLINE(misc-unconventional-assign-operator): an operation among the virtual ones
    virtual CSFVInverterInput& operator=(const CSFVInverterInput& otra);
    /// All three fields; texts with their case.
    virtual bool operator==(const CSFVInverterInput& otra) const;
    virtual bool operator!=(const CSFVInverterInput& otra) const;

    /// Opens the input's dialog. @return 1 when the person accepted, with what was edited in the record; else 0
    virtual int EditarPropiedades();
    /// "Rojo", "Por capa"; of a code without a name its number.
    virtual CString GetTextColor() const;
    /// Appends the input's row, with the input as its object: position from 1, label, colour.
    /// @return the list's rows, here and below
    virtual int InsertInList(CListCtrl& lista);
    /// Rewrites every row that stands for the input.
    virtual int EditInList(CListCtrl& lista);
    /// Removes nothing: whoever owns the input removes its row.
    virtual int RemoveInList(CListCtrl& lista);

    static const CRuntimeClass& GetThisClass();
};

/// Brings a list of inputs in step with an inverter's counts. Inputs go round the trackers: the first of each,
/// then the second of each.
/// @param iNumeroInversor number in the labels, "ST[0012].1.1"; 0 and below: "ST1.1"
/// @param iNumMPPT        trackers; below 1 the list ends empty
/// @param iNumEntradas    inputs. More than 10,000 throw CInvalidArgException, and nothing changes
/// @param bForzar         0: an input that is there keeps all its fields, a wrong position too; else each gets
///                        position, label and the layer's colour anew
/// @return the list's count
EFV_API int phAsignArrayInverterInputs(int iNumeroInversor, int iNumMPPT, int iNumEntradas,
                                       CObArrayPropio<CSFVInverterInput>& aEntradas, int bForzar);

/// Replaces what `aDestino` holds by copies of the inputs of `aOrigen`. @return the count of `aDestino`
EFV_API int phCopyArrayInverterInputs(const CObArrayPropio<CSFVInverterInput>& aOrigen,
                                      CObArrayPropio<CSFVInverterInput>& aDestino);

/// Whether the two lists are **alike**, against what the name suggests.
/// @return 1 when as many inputs stand in both and each is equal to the one in its place; else 0
EFV_API int phIsChangedArrayInverterInputs(const CObArrayPropio<CSFVInverterInput>& aA,
                                           const CObArrayPropio<CSFVInverterInput>& aB);

namespace efv {

/// Lets the person edit labels and colours of an inverter's inputs, in a copy until it is accepted. Each must
/// have a label.
/// @param iNumMPPT, iNumEntradas of the inverter, shown  @return 1 accepted; 0 cancelled, nothing written
EFV_API int EditarEntradas(CObArrayPropio<CSFVInverterInput>& aEntradas, int iNumMPPT, int iNumEntradas);

}  // namespace efv

/// A panel of a string.
class EFV_API CSFVStringElm : public CObject {
public:
    double dLongitud = 0.0;  ///< of the cable up to it
    int lPanel = 0;          ///< the host's identifier of the panel
    void* pDatos = nullptr;  ///< the host's own, not owned

    CSFVStringElm() = default;
    CSFVStringElm(const CSFVStringElm&) = default;
    CSFVStringElm& operator=(const CSFVStringElm&) = default;
    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVStringElm() override;

    static const CRuntimeClass& GetThisClass();
};

/// A string of panels.
class EFV_API CSFVString : public CObject {
public:
    CString csReferencia;  ///< label
    short nColor = 256;    ///< as in CSFVInverterInput
    CObArrayPropio<CSFVStringElm> aElementos;

    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVString() override;

    /// Sorts the elements by length. Two that lie within 0.000001 of each other aren't exchanged.
    /// @param iSentido 0 from the longest to the shortest, else the reverse  @return 1
    virtual int SortString(int iSentido);
    /// @return 1 when an element stands for the panel, else 0
    virtual int IsThisPaneInString(int lPanel) const;
    /// The greatest length; 0 without elements, and of lengths below 0.
    virtual double GetLMax() const;
    /// The least length; the largest double without elements.
    virtual double GetLMin() const;

    static const CRuntimeClass& GetThisClass();

private:
    void Clean();
};

/// What connects strings with each other: distances to objects, both lists in step.
class EFV_API CSFVInterconectInfo : public CObject {
public:
    std::int64_t anReservado[4] = {};  ///< the host's own; cleared here and never read
    CArray<double, double&> adDistancia;
    CObArray aObjetos;    ///< by distance, not owned
    int iNumLineas = 0;   ///< lines made so far
    int bLineaUnica = 0;  ///< not 0: one line alone may be made, else two

    const CRuntimeClass& GetRuntimeClass() const override;
    ~CSFVInterconectInfo() override;

    /// Sorts by distance, from the least, objects along. Two distances within 0.000001 aren't exchanged. Lists
    /// of different length throw CInvalidArgException, and nothing changes. @return 1
    virtual int SortByDistancia();
    /// @return 1 while another line may be made, else 0
    virtual int CanCreateOtherLine() const;

    static const CRuntimeClass& GetThisClass();
};
